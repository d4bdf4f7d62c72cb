#include "cli/ProgressBar.h"
#include "platform/linux/LinuxStorage.h"
#include "service/ShownText.h"
#include "store/StorePlaces.h"
#include "support/CommandBench.h"
#include "support/FakeClock.h"
#include "support/PrintQt.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gmock/gmock.h>

#include <sys/stat.h>

namespace quillon::testing {
namespace {

namespace fs = std::filesystem;
using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

constexpr const char* pdfRules = R"([
  {"name": "Papers",
   "conditions": [{"id": "0E4C8D11-93F7-4E0B-8A65-2B7C1D9E3F40", "attribute": "Extension",
                   "op": "is", "value": "pdf"}],
   "actions": [{"type": "Sort into subfolder"}]},
  {"name": "Blocked",
   "conditions": [{"id": "0E4C8D11-93F7-4E0B-8A65-2B7C1D9E3F41", "attribute": "Extension",
                   "op": "is", "value": "bad"}],
   "actions": [{"type": "Move to folder"}]}])";

struct UsageCase {
    std::vector<std::string> arguments;
    ExitCode code;
    const char* said; ///< on standard output when the code is `done`, else on standard error
};

/// Names stand for what UsageTest makes; nothing may be changed by any of them.
const UsageCase usageCases[] = {
    {{"--version"}, ExitCode::done, "quillon 0."},
    {{"--help"}, ExitCode::done, "preview"},
    {{"tidy", "--help"}, ExitCode::done, "quillon tidy ~/Downloads --rules rules.json"},

    {{}, ExitCode::usage, "tidy"},
    {{"tdy"}, ExitCode::usage, "“tdy” is not a command; the nearest is “tidy”"},
    {{"undoo", "--last"}, ExitCode::usage, "the nearest is “undo”"},
    {{"--vers"}, ExitCode::usage, "the nearest is “--version”"},
    {{"tidy", "@in", "--rule", "@r"}, ExitCode::usage, "the nearest is “--rules”"},
    {{"tidy", "@in"}, ExitCode::usage, "--rules is required"},
    {{"tidy", "--rules", "@rules.json"}, ExitCode::usage, "DIR is required"},
    {{"tidy", "@in", "more", "--rules", "@r"}, ExitCode::usage, "“more” is one argument too many"},
    {{"tidy", "@in", "--rules", "@rules.json", "--settle", "-1"},
     ExitCode::usage,
     "--settle: “-1” is not a time in seconds"},
    {{"tidy", "@in", "--rules", "@rules.json", "--settle", "nan"}, ExitCode::usage, "“nan”"},
    {{"tidy", "@in", "--rules", "@rules.json", "--settle", "1e300"}, ExitCode::usage, "“1e300”"},
    {{"tidy", "@in", "--rules", "@rules.json", "--settle", "3s"}, ExitCode::usage, "“3s”"},
    {{"tidy", "@in", "--rules"}, ExitCode::usage, "--rules takes one value and is given once"},
    {{"log", "--limit", "0"}, ExitCode::usage, "“0” is not a number of entries"},
    {{"undo"}, ExitCode::usage, "Give one of ENTRY, --batch ID, --last and --since TIME"},
    {{"undo", "--last", "--batch", "ABCD"}, ExitCode::usage, "Give one of"},

    {{"tidy", "@none", "--rules", "@rules.json"}, ExitCode::unreadable, "No such file"},
    {{"tidy", "@in/a.pdf", "--rules", "@rules.json"}, ExitCode::unreadable, "a.pdf can't be read"},
    {{"preview", "@none", "--rules", "@rules.json"}, ExitCode::unreadable, "No such file"},
    {{"tidy", "@in", "--rules", "@none.json"}, ExitCode::unreadable, "No such file"},
    {{"tidy", "@in", "--rules", "@in"}, ExitCode::unreadable, "/in can't be read"},
    {{"tidy", "@in", "--rules", "@pipe"}, ExitCode::unreadable, "/pipe can't be read"},
    {{"tidy", "@in", "--rules", "@broken.json"}, ExitCode::unreadable, "line 1, column"},
    {{"check", "@wrong.json"},
     ExitCode::unreadable,
     "rules[0].conditions[0].op: “contians” is not an operator"},
    {{"check", "-"}, ExitCode::unreadable, "standard input can't be understood: the text is empty"},
};

TEST(Usage, answersInOneSentenceAndTouchesNothing) {
    CommandBench bench;
    bench.write("in/a.pdf", "a");
    bench.write("rules.json", pdfRules);
    bench.write("broken.json", "[{");
    bench.write("wrong.json",
                R"([{"conditions": [{"id": "0E4C8D11-93F7-4E0B-8A65-2B7C1D9E3F40",
                     "attribute": "Name", "op": "contians", "value": ""}]}])");
    ASSERT_EQ(::mkfifo(bench.at("pipe").c_str(), 0600), 0);
    const auto before = bench.files();

    for (const UsageCase& c : usageCases) {
        SCOPED_TRACE(CommandBench::lineOf(c.arguments));
        const CommandBench::Result result = bench.run(c.arguments);
        EXPECT_EQ(result.code, c.code);
        EXPECT_THAT(c.code == ExitCode::done ? result.out : result.err, HasSubstr(c.said));
        EXPECT_THAT(c.code == ExitCode::done ? result.err : result.out, IsEmpty());
        if (c.code == ExitCode::unreadable) {
            EXPECT_EQ(std::ranges::count(result.err, '\n'), 1) << result.err;
        }
        EXPECT_EQ(bench.files(), before);
    }
}

class CommandTest : public ::testing::Test {
protected:
    CommandTest() {
        bench_.write("rules.json", pdfRules);
        bench_.write("in/a.pdf", "first");
        bench_.write("in/\033[2Jb.pdf", "second");
        bench_.write("in/c.bad", "third");
        bench_.write("in/note.txt", "fourth");
        bench_.write("in/d.pdf.part", "half");
    }

    CommandBench::Result run(std::vector<std::string> arguments) {
        return bench_.run(std::move(arguments));
    }
    QJsonDocument json(std::vector<std::string> arguments) {
        return bench_.json(std::move(arguments));
    }

    CommandBench bench_;
};

TEST_F(CommandTest, tidiesLogsAndUndoes) {
    const auto tidied = run({"tidy", "@in", "--rules", "@rules.json"});
    EXPECT_EQ(tidied.code, ExitCode::someFailed);
    EXPECT_THAT(tidied.out, HasSubstr("a.pdf         sorted into PDFs\n"));
    EXPECT_THAT(tidied.out, HasSubstr("\\x1b[2Jb.pdf  sorted into PDFs\n"));
    EXPECT_THAT(tidied.out, HasSubstr("\nTidied 2 files, 1 failed, 1 still settling.\n"));
    EXPECT_TRUE(fs::exists(bench_.at("in/PDFs/a.pdf")));

    const auto log = run({"log", "--errors"});
    EXPECT_THAT(log.out, HasSubstr("c.bad"));
    EXPECT_THAT(log.out, Not(HasSubstr("a.pdf")));
    EXPECT_EQ(json({"log", "--limit", "2"}).array().size(), 2);

    const std::vector<std::string> undo = CommandBench::undoIn(tidied.out);
    const auto undone = run(undo);
    EXPECT_EQ(undone.code, ExitCode::done);
    EXPECT_THAT(undone.out, HasSubstr("Put back 2 files."));
    EXPECT_TRUE(fs::exists(bench_.at("in/a.pdf")));
    EXPECT_EQ(run(undo).code, ExitCode::someFailed);
    EXPECT_EQ(run({"undo", "--last"}).err, "quillon: There is nothing to undo\n");
    EXPECT_EQ(json({"log"}).array().size(), 1);
}

TEST_F(CommandTest, tidyAnswersAsContracted) {
    const QJsonObject answer = json({"tidy", "@in", "--rules", "@rules.json"}).object();
    EXPECT_THAT(answer.keys(), ElementsAre(u"batchID"_s, u"deferred"_s, u"entries"_s, u"folder"_s,
                                           u"skippedNames"_s, u"tested"_s, u"waiting"_s));
    EXPECT_EQ(answer[u"folder"].toString().toStdString(), fs::canonical(bench_.at("in")));
    EXPECT_EQ(answer[u"tested"].toInt(), 4);
    EXPECT_EQ(answer[u"deferred"].toInt(), 1);
    EXPECT_EQ(answer[u"skippedNames"].toInt(), 0);
    EXPECT_TRUE(answer[u"waiting"].toArray().isEmpty());
    ASSERT_EQ(answer[u"entries"].toArray().size(), 3);
    for (const QJsonValue& value : answer[u"entries"].toArray()) {
        const QJsonObject entry = value.toObject();
        EXPECT_EQ(entry[u"batchID"], answer[u"batchID"]);
        EXPECT_FALSE(entry.contains(u"folderID"));
        EXPECT_EQ(entry[u"folderName"].toString(), u"in");
        const QDateTime date = QDateTime::fromString(entry[u"date"].toString(), Qt::ISODateWithMs);
        EXPECT_LT(std::abs(date.secsTo(QDateTime::currentDateTimeUtc())), 60);
        EXPECT_TRUE(entry[u"date"].toString().endsWith(u'Z'));
    }
}

TEST_F(CommandTest, undoTakesTheBeginningOfAnEntry) {
    const QJsonArray entries =
        json({"tidy", "@in", "--rules", "@rules.json"}).object()[u"entries"].toArray();
    const QJsonObject moved = entries[1].toObject();
    const std::string id = moved[u"id"].toString().toStdString();
    const struct {
        std::string entry;
        ExitCode code;
    } cases[] = {
        {id.substr(0, 3), ExitCode::usage},
        {"not an id", ExitCode::usage},
        {"00000000-0000-0000-0000-000000000000", ExitCode::someFailed},
        {QString::fromStdString(id.substr(0, 8)).toLower().toStdString(), ExitCode::done},
        {id, ExitCode::someFailed},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.entry);
        EXPECT_EQ(run({"undo", c.entry}).code, c.code);
    }
    const QJsonObject answer = json({"undo", "--last"}).object();
    ASSERT_EQ(answer[u"undone"].toArray().size(), 1);
    EXPECT_TRUE(answer[u"failed"].toArray().isEmpty());
    EXPECT_TRUE(fs::exists(answer[u"undone"][0][u"path"].toString().toStdString()));
}

TEST_F(CommandTest, readingVerbsChangeNothing) {
    const auto before = bench_.files();
    const QJsonObject preview = json({"preview", "@in", "--rules", "@rules.json"}).object();
    EXPECT_THAT(preview.keys(), ElementsAre(u"deferred"_s, u"items"_s, u"tested"_s));
    EXPECT_EQ(preview[u"items"].toArray().size(), 3);
    const QJsonArray probe = json({"probe", "@in", "--rules", "@rules.json"}).array();
    ASSERT_EQ(probe.size(), 2);
    EXPECT_EQ(probe[0][u"matches"].toArray().size(), 2);
    EXPECT_EQ(probe[0][u"tested"].toInt(), 4);
    EXPECT_EQ(probe[0][u"rule"].toString(), u"Papers");
    const QJsonArray check = json({"check", "@rules.json"}).array();
    ASSERT_EQ(check.size(), 2);
    EXPECT_TRUE(check[0][u"warnings"].toArray().isEmpty());
    EXPECT_FALSE(check[1][u"warnings"].toArray().isEmpty());
    EXPECT_THAT(run({"preview", "@in", "--rules", "@rules.json"}).out,
                HasSubstr("Would tidy 3 of 4 files, 1 still settling."));
    EXPECT_THAT(run({"probe", "@in", "--rules", "@rules.json"}).out,
                HasSubstr("Papers: 2 of 4 files\n"));
    EXPECT_EQ(run({"check", "@rules.json"}).code, ExitCode::done);
    EXPECT_THAT(run({"log"}).out, HasSubstr("Nothing has been done yet."));
    EXPECT_EQ(bench_.files(), before);
}

TEST_F(CommandTest, anEmptyRuleListIsNothingToDo) {
    const auto before = bench_.files();
    for (const char* verb : {"tidy", "preview", "probe"}) {
        const auto result = bench_.run({verb, "@in", "--rules", "-", "--json"}, "[]");
        EXPECT_EQ(result.code, ExitCode::done);
        EXPECT_THAT(result.err, HasSubstr("There are no rules"));
        EXPECT_FALSE(QJsonDocument::fromJson(QByteArray::fromStdString(result.out)).isNull());
    }
    EXPECT_EQ(bench_.files(), before);
}

TEST_F(CommandTest, refusesToTidyWithoutALog) {
    bench_.write("data/Quillon", "a file where the data folder belongs");
    const auto before = bench_.files();
    const auto result = run({"tidy", "@in", "--rules", "@rules.json"});
    EXPECT_EQ(result.code, ExitCode::unreadable);
    EXPECT_THAT(result.err, StartsWith("quillon: Quillon's data folder"));
    EXPECT_THAT(result.out, IsEmpty());
    EXPECT_EQ(bench_.files(), before);
}

TEST_F(CommandTest, saysWhenAnotherIsAtWork) {
    fs::create_directories(bench_.at("data/Quillon"));
    LinuxStorage storage;
    const auto held = storage.tryLock(StorePlaces(bench_.at("data/Quillon")).lock());
    ASSERT_TRUE(held);
    const auto before = bench_.files();
    const auto result = run({"tidy", "@in", "--rules", "@rules.json"});
    EXPECT_EQ(result.code, ExitCode::unreachable);
    EXPECT_THAT(result.err, StartsWith("quillon: Another Quillon is at work"));
    EXPECT_EQ(bench_.files(), before);
    EXPECT_EQ(run({"log"}).code, ExitCode::done);
}

TEST_F(CommandTest, coloursOnlyWhereAskedFor) {
    const std::vector<std::string> arguments{"check", "@rules.json"};
    EXPECT_THAT(bench_.run(arguments, {}, true).out, HasSubstr("\x1b[1mPapers\x1b[0m"));
    EXPECT_THAT(bench_.run(arguments).out, Not(HasSubstr("\x1b")));
}

TEST(ProgressBar, showsItselfOnATerminalWhenTheWorkTakesLongAndThenGoes) {
    for (const bool isTerminal : {true, false}) {
        FakeClock clock;
        std::ostringstream terminal;
        {
            ProgressBar bar(terminal, clock, isTerminal);
            bar.update(1, 10);
            clock.advance(std::chrono::milliseconds(900));
            bar.update(2, 10);
            EXPECT_EQ(terminal.str(), "");
            clock.advance(std::chrono::milliseconds(200));
            bar.update(5, 10);
            bar.update(6, 10);
        }
        EXPECT_EQ(terminal.str(),
                  isTerminal ? "\r\x1b[K[###############...............] 5 of 10 files\r\x1b[K"
                             : "");
    }
}

TEST(ShownText, letsNothingReachTheTerminalThatMovesItsCursor) {
    const struct {
        QString text;
        QString shown;
        qsizetype width;
    } cases[] = {
        {u"plain name.txt"_s, u"plain name.txt"_s, 14},
        {u"a\nb\tc\rd"_s, u"a\\nb\\tc\\rd"_s, 10},
        {u"\x1b[31m\x7f\x9b"_s, u"\\x1b[31m\\x7f\\x9b"_s, 16},
        {u"txt.\u202egpj\u2066"_s, u"txt.\\u202egpj\\u2066"_s, 19},
        {u"e\u0301té"_s, u"e\u0301té"_s, 3},
        {u"\u5e74\u6708.pdf"_s, u"\u5e74\u6708.pdf"_s, 8},
        {u"👩\u200d💻"_s, u"👩\u200d💻"_s, 4},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(shownText(c.text), c.shown);
        EXPECT_EQ(shownWidth(shownText(c.text)), c.width) << c.text.toStdString();
    }
}

} // namespace
} // namespace quillon::testing
