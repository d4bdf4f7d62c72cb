#include "model/CleanupRecipe.h"
#include "store/PersistedState.h"
#include "support/CommandBench.h"
#include "support/FullDisk.h"
#include "support/PrintQt.h"

#include <QJsonArray>
#include <QJsonObject>
#include <gmock/gmock.h>

namespace quillon::testing {
namespace {

namespace fs = std::filesystem;
using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// A home with two watched folders: "in" sorts PDFs into a subfolder, "gone" is not there.
class StoreVerbs : public ::testing::Test {
protected:
    StoreVerbs() {
        bench_.write("in/a.pdf", "first");
        bench_.write("in/note.txt", "second");
        bench_.write("other/Screenshot 1.png", "picture");
        bench_.write("other/b.pdf", "third");
        fs::create_directories(bench_.at("data/Quillon"));
        state_.folders = {watched("in"), watched("gone")};
        save();
    }

    WatchedFolder watched(const std::string& name) {
        WatchedFolder folder;
        folder.path = QString::fromStdString(fs::weakly_canonical(bench_.at(name)));
        folder.setTiming(TidyTiming::hourly);
        folder.rules = {Rule{.name = u"Papers"_s,
                             .conditions = {{.attribute = ConditionAttribute::extension,
                                             .op = MatchOperator::is,
                                             .value = u"pdf"_s}},
                             .actions = {{.type = ActionType::sortIntoSubfolder}}}};
        return folder;
    }

    void save() {
        std::ofstream(bench_.at("data/Quillon/store.json")) << encodeState(state_).toStdString();
    }

    CommandBench::Result run(std::vector<std::string> arguments) {
        return bench_.run(std::move(arguments));
    }
    QJsonDocument json(std::vector<std::string> arguments) {
        return bench_.json(std::move(arguments));
    }

    CommandBench bench_;
    PersistedState state_;
};

struct Refused {
    std::vector<std::string> arguments;
    ExitCode code;
    const char* said;
};

const Refused refusals[] = {
    {{"run", "@other"}, ExitCode::usage, "other is not watched; the nearest that is: "},
    {{"run", "@none"}, ExitCode::unreadable, "No such file or directory; it is not watched"},
    {{"cleanup", "@other", "--recipe", "screen-shots"},
     ExitCode::usage,
     "“screen-shots” is not a recipe; the nearest is “screenshots”"},
    {{"cleanup", "@other", "--days", "screenshots=3"}, ExitCode::usage, "how old"},
    {{"cleanup", "@other", "--days", "loose-archives=3"},
     ExitCode::usage,
     "add --recipe loose-archives"},
    {{"cleanup", "@other", "--keep"}, ExitCode::usage, "other is not watched"},
    {{"cleanup", "@none"}, ExitCode::unreadable, "No such file"},
    {{"cleanup", "@other/b.pdf"}, ExitCode::unreadable, "b.pdf can't be read"},
    {{"recipe", "list", "--folder", "@none"}, ExitCode::unreadable, "No such file"},
    {{"log", "--folder", "@other"}, ExitCode::usage, "is not watched"},
    {{"log", "--since", "last night"}, ExitCode::usage, "is not a time; try “yesterday 18:00”"},
    {{"undo", "--last"}, ExitCode::someFailed, "There is nothing to undo"},
    {{"undo", "--since", "today 7:99"}, ExitCode::usage, "“today 7:99” is not a time"},
    {{"undo", "--since", "yesterday"}, ExitCode::someFailed, "Nothing that was done then"},
    {{"settings", "get", "notificationEnabled"},
     ExitCode::usage,
     "the nearest is “notificationsEnabled”"},
    {{"settings", "set", "ai.usage.count", "0"}, ExitCode::usage, "is not a setting"},
    {{"settings", "set", "notificationsEnabled", "maybe"}, ExitCode::usage, "true or false"},
    {{"diagnostics", "--output", "@in/a.pdf"}, ExitCode::someFailed, "nothing is overwritten"},
};

TEST_F(StoreVerbs, refuseInOneSentenceAndTouchNothing) {
    std::ignore = run({"undo", "--last"}); // makes the lock file and the journal
    const auto before = bench_.files();
    for (const Refused& c : refusals) {
        SCOPED_TRACE(CommandBench::lineOf(c.arguments));
        const auto result = run(c.arguments);
        EXPECT_EQ(result.code, c.code);
        EXPECT_THAT(result.err, HasSubstr(c.said));
        EXPECT_EQ(std::ranges::count(result.err, '\n'), 1) << result.err;
        EXPECT_THAT(result.out, IsEmpty());
        EXPECT_EQ(bench_.files(), before);
    }
}

TEST_F(StoreVerbs, runTidiesAndSaysWhatIsMissing) {
    const auto result = run({"run"});
    EXPECT_EQ(result.code, ExitCode::someFailed);
    EXPECT_EQ(result.out, "a.pdf  sorted into PDFs\n\nin: tidied 1 file.\n");
    EXPECT_THAT(result.err, HasSubstr("quillon: The folder gone can't be read: "));
    EXPECT_TRUE(fs::exists(bench_.at("in/PDFs/a.pdf")));
    EXPECT_THAT(run({"run", "@in/../in/"}).out, HasSubstr("in: tidied no files"));

    EXPECT_THAT(run({"log", "--folder", "@in"}).out, HasSubstr("a.pdf"));
    EXPECT_THAT(run({"log", "--folder", "@gone"}).out, Not(HasSubstr("a.pdf")));
    EXPECT_EQ(run({"undo", "--last"}).code, ExitCode::done);
    EXPECT_TRUE(fs::exists(bench_.at("in/a.pdf")));
}

TEST_F(StoreVerbs, runWaitsForWhatSettlesWhenAsked) {
    std::ofstream(bench_.at("in/new.pdf")) << "just now";
    const QJsonArray first = json({"run", "@in"}).array();
    ASSERT_EQ(first.size(), 1);
    EXPECT_EQ(first[0][u"deferred"].toInt(), 1);
    EXPECT_EQ(first[0][u"entries"].toArray().size(), 1);
    const auto waited = run({"run", "@in", "--wait"});
    EXPECT_EQ(waited.out, "new.pdf  sorted into PDFs\n\nin: tidied 1 file.\n");
    EXPECT_EQ(waited.code, ExitCode::done);
}

TEST_F(StoreVerbs, cleanupShowsThenDoesThenUndoes) {
    const auto before = bench_.files();
    const std::vector<std::string> command{"cleanup",     "@other",   "--recipe",
                                           "screenshots", "--recipe", "loose-archives"};
    std::vector<std::string> dry = command;
    dry.emplace_back("--dry-run");
    const auto shown = run(dry);
    EXPECT_THAT(shown.out, HasSubstr("Loose archives  Unpack archives sitting untouched for 7 days,"
                                     " then trash the originals.  Can’t be undone\n"));
    EXPECT_THAT(shown.out, HasSubstr("Would tidy 1 of 2 files."));
    EXPECT_EQ(json(dry).object()[u"items"].toArray().size(), 1);
    EXPECT_EQ(bench_.files(), before);

    const auto done = run(command);
    EXPECT_EQ(done.code, ExitCode::done);
    EXPECT_TRUE(fs::exists(bench_.at("other/Screenshots/Screenshot 1.png")));
    EXPECT_EQ(run(CommandBench::undoIn(done.out)).code, ExitCode::done);
    EXPECT_TRUE(fs::exists(bench_.at("other/Screenshot 1.png")));
}

TEST_F(StoreVerbs, cleanupKeepsTheRecipesAsRules) {
    state_.folders[0].rules[0].name = u"File screenshots"_s;
    save();
    const QJsonObject answer = json({"cleanup", "@in", "--recipe", "old-installers", "--days",
                                     "old-installers=5", "--days", "loose-archives=9", "--keep"})
                                   .object();
    EXPECT_EQ(answer[u"rules"].toArray().size(), 4);
    const auto stored = decodeState(
        QByteArray::fromStdString(bench_.files()["data/Quillon/store.json"]), Timestamp{});
    ASSERT_TRUE(stored);
    QStringList rules;
    for (const Rule& rule : stored->folders[0].rules)
        rules.append(rule.name + (rule.isEnabled ? u" on "_s : u" off "_s) +
                     rule.conditions.back().value);
    EXPECT_THAT(rules, ElementsAre(u"File screenshots on pdf"_s, u"Trash old installers on 5"_s,
                                   u"Set aside stale files off folder"_s,
                                   u"Unpack loose archives off 9"_s, u"Sort by kind off 0"_s));
}

TEST_F(StoreVerbs, pauseHoldsUntilResumed) {
    EXPECT_EQ(run({"pause"}).code, ExitCode::done);
    EXPECT_TRUE(json({"status"}).object()[u"paused"].toBool());
    EXPECT_THAT(run({"pause"}).out, HasSubstr("already"));
    EXPECT_THAT(run({"resume"}).out, HasSubstr("in: tidied 1 file."));
    EXPECT_THAT(run({"resume"}).out, HasSubstr("It was not paused."));
}

TEST_F(StoreVerbs, aChangeThatCannotBeSavedIsSaid) {
    const auto paused = [&] {
        const FullDisk full;
        return run({"pause"});
    }();
    EXPECT_EQ(paused.code, ExitCode::someFailed);
    EXPECT_THAT(paused.err, HasSubstr("The change can't be saved (File too large)"));
    EXPECT_FALSE(json({"status"}).object()[u"paused"].toBool());
    const auto added = [&] {
        const FullDisk full;
        return run({"rule", "add", "--folder", "@in", "--if", "extension is x", "--then", "trash"});
    }();
    EXPECT_THAT(added.err, HasSubstr("The change can't be saved"));
    EXPECT_THAT(added.out, Not(HasSubstr("Added")));
}

TEST_F(StoreVerbs, statusTellsOfEachFolder) {
    state_.logs = {LogEntry{.date = std::chrono::system_clock::now(),
                            .fileName = u"x.bad"_s,
                            .folderID = state_.folders[0].id,
                            .isError = true}};
    save();
    const QJsonObject status = json({"status"}).object();
    EXPECT_FALSE(status[u"running"].toBool(true));
    EXPECT_TRUE(status[u"needsAttention"].toBool());
    EXPECT_EQ(status[u"dataFolder"].toString().toStdString(), bench_.at("data/Quillon"));
    const QJsonArray folders = status[u"folders"].toArray();
    ASSERT_EQ(folders.size(), 2);
    EXPECT_EQ(folders[0][u"access"].toString(), u"ok");
    EXPECT_EQ(folders[0][u"timing"].toString(), u"hourly");
    EXPECT_EQ(folders[0][u"recentErrors"].toInt(), 1);
    EXPECT_EQ(folders[0][u"rulesOn"].toInt(), 1);
    EXPECT_EQ(folders[1][u"access"].toString(), u"missing");
    const auto text = run({"status"});
    EXPECT_THAT(text.out, HasSubstr("/in    Every hour  1 rule  1 failure in the last day\n"));
    EXPECT_THAT(text.out, HasSubstr("/gone  Every hour  1 rule  not found\n"));
}

TEST_F(StoreVerbs, diagnosticsGoToAFileOfTheirOwn) {
    const auto printed = run({"diagnostics"});
    EXPECT_THAT(printed.out, HasSubstr("WATCHED FOLDERS (2)"));
    EXPECT_EQ(run({"diagnostics", "--output", "@other"}).code, ExitCode::done);
    EXPECT_THAT(bench_.files()["other/Quillon Diagnostics.txt"], HasSubstr("WATCHED FOLDERS (2)"));
    EXPECT_EQ(run({"diagnostics", "--output", "@other"}).code, ExitCode::someFailed);
}

TEST_F(StoreVerbs, settingsAreKept) {
    EXPECT_EQ(run({"settings", "get", "notificationsEnabled"}).out, "false\n");
    EXPECT_EQ(run({"settings", "set", "notificationsEnabled", "on"}).code, ExitCode::done);
    const QJsonObject setting = json({"settings", "get", "notificationsEnabled"}).object();
    EXPECT_TRUE(setting[u"value"].toBool());
    EXPECT_FALSE(setting[u"default"].toBool(true));
    EXPECT_THAT(run({"settings", "list"}).out, Not(HasSubstr("ai.usage.count")));
}

} // namespace
} // namespace quillon::testing
