#include "service/CommandClient.h"
#include "service/InstanceRequest.h"
#include "support/RunningAgent.h"
#include "support/ScratchFolder.h"

#include <gmock/gmock.h>

#include <sstream>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using ::testing::HasSubstr;

/// A running agent, and a process that takes its place.
class HandOver : public ::testing::Test {
protected:
    ScratchFolder home_;
    RunningAgent agent_{QStringLiteral(QUILLON_PROGRAM), home_.root()};
    QProcess successor_;

    std::optional<ExitCode> ask(const InstanceRequest& request) {
        std::istringstream in;
        std::ostringstream out;
        const Console console{.in = in, .out = out, .err = out};
        return carriedOutByInstance(wordsOf(request), console,
                                    {.home = home_.root(),
                                     .data = home_.path("data/Quillon"),
                                     .runtime = home_.path("run")});
    }
    void handOver() {
        successor_.start(u"cat"_s, {});
        ASSERT_TRUE(successor_.waitForStarted());
        ASSERT_EQ(ask({.kind = InstanceRequest::Kind::handOver,
                       .argument = std::to_string(successor_.processId())}),
                  ExitCode::done);
    }
    bool isAnswering() {
        return agent_.command({u"status"_s}).out.find("Quillon is running.") != std::string::npos;
    }
    void TearDown() override {
        successor_.closeWriteChannel();
        successor_.waitForFinished();
    }
};

TEST_F(HandOver, givesTheStoreAwayAndTakesItBackWhenTheSuccessorIsKilled) {
    home_.makeFolder("in");
    const QString in = QString::fromStdString(home_.path("in"));
    ASSERT_TRUE(agent_.start()) << agent_.said();
    EXPECT_EQ(ask({.kind = InstanceRequest::Kind::show}), ExitCode::usage) << "it has no window";
    handOver();
    ASSERT_TRUE(comesTrue([&] { return !isAnswering(); }, 20s)) << agent_.said();
    // A command that changes something needs the store's lock.
    const auto added = agent_.command({u"folder"_s, u"add"_s, in, u"--timing"_s, u"manual"_s});
    EXPECT_EQ(added.code, 0) << added.err;
    EXPECT_FALSE(isAnswering());
    successor_.kill();
    EXPECT_TRUE(comesTrue([&] { return isAnswering(); }, 20s)) << agent_.said();
    EXPECT_THAT(agent_.said(), HasSubstr("started, 1 folder"));
    EXPECT_EQ(agent_.stop(), 0);
}

TEST_F(HandOver, endsAtOnceWhenAskedToWhileItWaits) {
    ASSERT_TRUE(agent_.start()) << agent_.said();
    handOver();
    ASSERT_TRUE(comesTrue([&] { return !isAnswering(); }, 20s)) << agent_.said();
    EXPECT_EQ(agent_.stop(), 0);
    EXPECT_EQ(successor_.state(), QProcess::Running);
}

TEST_F(HandOver, anAgentThatIsToWaitTakesItsTurn) {
    ASSERT_TRUE(agent_.start()) << agent_.said();
    QProcess waiting;
    waiting.setProcessEnvironment(agent_.environment());
    waiting.start(QStringLiteral(QUILLON_PROGRAM), {u"agent"_s, u"--wait"_s});
    ASSERT_TRUE(waiting.waitForStarted());
    EXPECT_FALSE(waiting.waitForFinished(300)) << "it runs, and waits";
    agent_.kill();
    EXPECT_TRUE(comesTrue([&] { return isAnswering(); }, 20s));
    waiting.terminate();
    EXPECT_TRUE(waiting.waitForFinished(20'000));
    EXPECT_EQ(waiting.exitCode(), 0);
}

} // namespace
} // namespace quillon::testing
