#include "assistant/DobbinJudge.h"

#include "support/FakeClock.h"
#include "support/FakePlatform.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

#include <thread>

namespace quillon {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

class Files final : public testing::NoFileSystem {
public:
    std::map<std::string, FileStatus> byPath;

    Expected<FileStatus> status(const std::string& path) const override {
        const auto found = byPath.find(path);
        if (found == byPath.end())
            return failure(ErrorKind::notFound, u"nothing there"_s);
        return found->second;
    }
};

class DobbinJudgeTest : public ::testing::Test {
protected:
    DobbinJudgeTest() {
        files_.byPath["/a"].size = 10;
        files_.byPath["/a"].modified = clock_.now();
    }

    [[nodiscard]] Verdict ask(const std::string& path = "/a") {
        return judge_.verdict(path, receipt_);
    }
    void queue(const std::string& path = "/a") { EXPECT_EQ(ask(path), Verdict::unknown); }
    VerdictRequest takeOne() {
        const auto taken = judge_.takePending(2, 2).verdicts;
        EXPECT_EQ(taken.size(), 1U);
        return taken.at(0);
    }

    const QString receipt_ = u"a receipt"_s;
    Files files_;
    FakeClock clock_;
    DobbinJudge judge_{files_, clock_};
};

} // namespace

TEST_F(DobbinJudgeTest, WaitsFromTheQuestionToTheAnswer) {
    EXPECT_FALSE(judge_.isWaiting("/a"));
    queue();
    queue();
    EXPECT_TRUE(judge_.hasPending());
    EXPECT_TRUE(judge_.isWaiting("/a"));
    EXPECT_FALSE(judge_.isWaiting("/b"));

    const VerdictRequest request = takeOne();
    EXPECT_EQ(request.question, receipt_);
    EXPECT_EQ(request.file, (FileKey{"/a", 10, clock_.now()}));
    queue();
    EXPECT_FALSE(judge_.hasPending()) << "asked again while it is being worked out";
    EXPECT_TRUE(judge_.isWaiting("/a"));

    judge_.recordVerdict(request, true);
    EXPECT_FALSE(judge_.isWaiting("/a"));
    EXPECT_EQ(ask(), Verdict::yes);
    judge_.recordVerdict(request, false);
    EXPECT_EQ(ask(), Verdict::no);
    EXPECT_EQ(judge_.verdict("/a", u"an invoice"_s), Verdict::unknown);
}

TEST_F(DobbinJudgeTest, WaitsUntilEveryQuestionIsAnswered) {
    queue();
    EXPECT_EQ(judge_.verdict("/a", u"an invoice"_s), Verdict::unknown);
    EXPECT_EQ(judge_.smartName("/a"), std::nullopt);
    const auto taken = judge_.takePending(24, 12);
    ASSERT_EQ(taken.verdicts.size(), 2U);
    ASSERT_EQ(taken.names.size(), 1U);

    judge_.recordVerdict(taken.verdicts[0], false);
    EXPECT_TRUE(judge_.isWaiting("/a"));
    judge_.recordVerdictFailure(taken.verdicts[1]);
    EXPECT_TRUE(judge_.isWaiting("/a"));
    judge_.recordName(taken.names[0], u"2026-05-23 Tesco receipt"_s);
    EXPECT_FALSE(judge_.isWaiting("/a"));
    EXPECT_EQ(judge_.smartName("/a"), u"2026-05-23 Tesco receipt"_s);
}

TEST_F(DobbinJudgeTest, AFailureIsLeftAloneForTenMinutes) {
    queue();
    EXPECT_EQ(judge_.smartName("/a"), std::nullopt);
    const auto taken = judge_.takePending(1, 1);
    judge_.recordVerdictFailure(taken.verdicts.at(0));
    judge_.recordNameFailure(taken.names.at(0));

    const struct {
        std::chrono::nanoseconds later;
        bool isQueued;
    } steps[] = {{0s, false}, {599s, false}, {1s - 1ns, false}, {1ns, true}};
    for (const auto& [later, isQueued] : steps) {
        clock_.advance(later);
        queue();
        EXPECT_EQ(judge_.smartName("/a"), std::nullopt);
        EXPECT_EQ(judge_.isWaiting("/a"), isQueued);
    }
    const auto again = judge_.takePending(2, 2);
    EXPECT_EQ(again.verdicts.size(), 1U);
    EXPECT_EQ(again.names.size(), 1U);
}

TEST_F(DobbinJudgeTest, AClockSetBackHoldsNothingUp) {
    queue();
    judge_.recordVerdictFailure(takeOne());
    clock_.advance(-24h);
    queue();
    EXPECT_TRUE(judge_.hasPending());
}

TEST_F(DobbinJudgeTest, AnAnswerAfterAFailureCounts) {
    queue();
    const VerdictRequest request = takeOne();
    judge_.recordVerdictFailure(request);
    judge_.recordVerdict(request, true);
    EXPECT_EQ(ask(), Verdict::yes);
    judge_.clearAnswers();
    queue();
    EXPECT_TRUE(judge_.hasPending()) << "the failure was forgotten with the answer";
}

TEST_F(DobbinJudgeTest, AChangedFileIsAskedAboutAnew) {
    queue();
    judge_.recordVerdict(takeOne(), true);
    const FileStatus original = files_.byPath["/a"];

    files_.byPath["/a"].size = 11;
    queue();
    EXPECT_EQ(takeOne().file.size, 11U);
    files_.byPath["/a"] = original;
    EXPECT_EQ(ask(), Verdict::yes);
    files_.byPath["/a"].modified += 1ns;
    queue();
    EXPECT_TRUE(judge_.isWaiting("/a"));

    files_.byPath["/a"].type = FileType::directory;
    queue();
    judge_.recordVerdict(judge_.takePending(2, 0).verdicts.at(0), true);
    files_.byPath["/a"].modified += 1s;
    EXPECT_EQ(ask(), Verdict::yes) << "something came or went in a folder";
}

TEST_F(DobbinJudgeTest, WhatIsKnownFollowsAFileThatIsMoved) {
    queue();
    EXPECT_EQ(judge_.smartName("/a"), std::nullopt);
    judge_.recordVerdict(takeOne(), true);
    judge_.recordName({"/a", 10, clock_.now()}, u"Hay bill"_s);
    const FileStatus status = files_.byPath["/a"];
    judge_.fileMoved("/a", status, "/b");
    judge_.fileMoved("/b", status, "/c");
    files_.byPath["/c"] = status;
    EXPECT_EQ(ask("/c"), Verdict::yes);
    EXPECT_EQ(judge_.smartName("/c"), u"Hay bill"_s);
    EXPECT_FALSE(judge_.hasPending());
    EXPECT_EQ(judge_.verdict("/c", u"a letter"_s), Verdict::unknown);
    judge_.clearAnswers();
    EXPECT_EQ(ask("/c"), Verdict::unknown);
}

TEST_F(DobbinJudgeTest, AMissingFileQueuesNothing) {
    queue("/gone");
    EXPECT_EQ(judge_.smartName("/gone"), std::nullopt);
    EXPECT_FALSE(judge_.hasPending());
    queue();
    files_.byPath.clear();
    EXPECT_FALSE(judge_.isWaiting("/a"));
}

TEST_F(DobbinJudgeTest, TakesNoMoreThanIsAskedFor) {
    for (int i = 0; i < 30; ++i) {
        const std::string path = "/file" + std::to_string(i);
        files_.byPath[path] = {};
        queue(path);
        EXPECT_EQ(judge_.smartName(path), std::nullopt);
    }
    EXPECT_TRUE(judge_.takePending(0, 0).verdicts.empty());
    const auto first = judge_.takePending(24, 12);
    EXPECT_EQ(first.verdicts.size(), 24U);
    EXPECT_EQ(first.names.size(), 12U);
    const auto second = judge_.takePending(24, 24);
    EXPECT_EQ(second.verdicts.size(), 6U);
    EXPECT_EQ(second.names.size(), 18U);
    EXPECT_FALSE(judge_.hasPending());
}

TEST_F(DobbinJudgeTest, ClearingForgetsAnswersOnly) {
    queue();
    judge_.recordVerdict(takeOne(), true);
    EXPECT_EQ(judge_.smartName("/a"), std::nullopt);
    judge_.clearAnswers();
    EXPECT_TRUE(judge_.isWaiting("/a")) << "the pending name stays";
    queue();
    EXPECT_EQ(takeOne().file.path, "/a");
}

TEST_F(DobbinJudgeTest, ManyThreadsAskAndAnswer) {
    for (int i = 0; i < 8; ++i)
        files_.byPath["/file" + std::to_string(i)] = {};
    std::vector<std::jthread> threads;
    for (int t = 0; t < 3; ++t)
        threads.emplace_back([this] {
            for (int i = 0; i < 2000; ++i) {
                const std::string path = "/file" + std::to_string(i % 8);
                std::ignore = judge_.verdict(path, receipt_);
                std::ignore = judge_.isWaiting(path);
                for (const auto& request : judge_.takePending(2, 0).verdicts)
                    judge_.recordVerdict(request, true);
            }
        });
    threads.clear();
    files_.byPath.erase("/a");
    for (const auto& [path, status] : files_.byPath)
        EXPECT_EQ(ask(path), Verdict::yes) << path;
    EXPECT_FALSE(judge_.hasPending());
}

} // namespace quillon
