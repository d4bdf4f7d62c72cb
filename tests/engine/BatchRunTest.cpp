#include "engine/BatchRun.h"

#include "engine/RunRestraint.h"
#include "support/ActionBench.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;

/// Knows files by what stands at a path, as the assistant does.
class LookingJudge : public FileJudge {
public:
    std::set<std::string> waitingNames;

    int asked = 0;
    std::vector<std::string> moved;

    Verdict verdict(const std::string&, const QString&) override {
        ++asked;
        return Verdict::unknown;
    }
    std::optional<QString> smartName(const std::string& path) override {
        ++asked;
        return std::filesystem::exists(path) ? std::optional(u"Invoice"_s) : std::nullopt;
    }
    void fileMoved(const std::string& from, const FileStatus&, const std::string& to) override {
        moved.push_back(std::filesystem::path(from).filename().string() + " -> " +
                        std::filesystem::path(to).filename().string());
    }
    bool isWaiting(const std::string& path) override {
        return waitingNames.contains(std::filesystem::path(path).filename());
    }
};

class NoJournal : public RunJournal {
public:
    bool isFull = false;

    Expected<void> intend(std::span<const Intent>) override {
        if (isFull)
            return failure(ErrorKind::io, u"the disk is full"_s);
        return {};
    }
    void record(const LogEntry&) override {}
};

Rule ruleFor(const QString& name, const QString& nameContains, std::vector<RuleAction> actions) {
    return {.name = name,
            .conditions = {{.attribute = ConditionAttribute::fullName, .value = nameContains}},
            .actions = std::move(actions)};
}

class BatchRunTest : public ::testing::Test {
protected:
    LinuxMachine machine_;
    LookingJudge judge_;
    NoJournal journal_;
    QSet<QString> skip_;
    EngineSettings settings_{.settleTime = {}};

    RunResult run(const std::vector<Rule>& rules) {
        const RuleEngine engine(machine_.platform, judge_, settings_);
        WatchedFolder folder;
        folder.path = QString::fromStdString(machine_.work());
        const auto ready = engine.readyFiles(folder);
        return engine.execute(ready.value(), rules, folder, skip_, QUuid::createUuid(), journal_);
    }
    std::set<QString> texts(const std::vector<Rule>& rules) {
        std::set<QString> found;
        for (const LogEntry& entry : run(rules).entries)
            found.insert(entry.fileName + u": "_s + entry.ruleName + u": "_s + entry.actionSummary);
        return found;
    }
};

TEST_F(BatchRunTest, givesEachFileToTheFirstRuleThatMatches) {
    for (const char* name : {"a.txt", "b.txt", "b.md"})
        machine_.write(name, name);
    Rule off = ruleFor(u"off"_s, u"a"_s, {makeAction(ActionType::trash)});
    off.isEnabled = false;
    const std::vector<Rule> rules{
        off, ruleFor(u"first"_s, u".txt"_s, {renameBy(u"{ext}-{counter:3}"_s)}),
        ruleFor(u"second"_s, u"b"_s, {renameBy(u"note-{counter}"_s)})};
    const std::set<QString> once = texts(rules);
    EXPECT_EQ(machine_.tree(), (std::set<std::string>{"note-1.md", "txt-001.txt", "txt-002.txt"}));
    EXPECT_EQ(once.size(), 3U);
    EXPECT_TRUE(once.contains(u"b.md: second: renamed to note-1.md"_s));

    machine_.write("c.txt", "");
    skip_ = run({}).seenKeys;
    EXPECT_EQ(texts(rules), std::set<QString>());
    machine_.write("d.txt", "");
    EXPECT_EQ(texts(rules), std::set<QString>{u"d.txt: first: renamed to txt-001 2.txt"_s});
}

TEST_F(BatchRunTest, holdsBackOnlyTheFilesThatWaitForTheAssistant) {
    for (const char* name : {"a.txt", "b.txt"})
        machine_.write(name, "");
    judge_.waitingNames = {"a.txt"};
    Rule asking = ruleFor(u"asking"_s, u""_s, {});
    asking.conditions[0] = {.attribute = ConditionAttribute::dobbinSays, .value = u"a bill"_s};
    const RunResult result = run({asking, ruleFor(u"rest"_s, u""_s, {renameBy(u"done"_s)})});
    EXPECT_EQ(result.waiting, QStringList{u"a.txt"_s});
    ASSERT_EQ(result.waitingKeys.size(), 1);
    EXPECT_EQ(keyPath(*result.waitingKeys.begin()), QString::fromStdString(machine_.at("a.txt")));
    EXPECT_EQ(machine_.tree(), (std::set<std::string>{"a.txt", "done.txt"}));
}

TEST_F(BatchRunTest, saysWhereTheFileItselfWent) {
    const RuleAction out = moveTo(u"~/work/Out"_s);
    const RuleAction nowhere = moveTo(u"relative"_s);
    const RuleAction copies = moveTo(u"~/work/Copies"_s, ActionType::copy);
    const RuleAction trash = makeAction(ActionType::trash);
    const RuleAction named = makeAction(ActionType::renameWithDobbin);
    const RuleAction tag = makeAction(ActionType::addTag);
    const struct {
        std::vector<RuleAction> actions;
        const char* place; ///< relative to the folder; empty when it is in the trash
        bool isError;
        bool undoable;
    } cases[] = {
        {{out}, "Out/a.txt", false, true},
        {{copies}, "Copies/a.txt", false, false},
        {{copies, out}, "Out/a.txt", false, true},
        {{out, copies}, "Out/a.txt", false, true},
        {{out, named}, "Out/Invoice.txt", false, true},
        {{nowhere, tag}, "a.txt", true, false},
        {{nowhere, out}, "Out/a.txt", true, true},
        {{copies, trash, tag}, "", false, true},
    };
    for (const auto& c : cases) {
        machine_.write("a.txt", "text");
        const RunResult result = run({ruleFor(u"r"_s, u"a.txt"_s, c.actions)});
        SCOPED_TRACE(result.entries.size() == 1 ? result.entries[0].actionSummary.toStdString()
                                                : "no entry");
        ASSERT_EQ(result.entries.size(), 1U);
        const LogEntry& entry = result.entries[0];
        EXPECT_EQ(entry.isError, c.isError);
        EXPECT_EQ(entry.undoable, c.undoable);
        EXPECT_EQ(entry.originalPath, QString::fromStdString(machine_.at("a.txt")));
        const std::optional<QString>& place = *c.place ? entry.currentPath : entry.trashedPath;
        ASSERT_TRUE(place);
        if (*c.place) {
            EXPECT_EQ(*place, QString::fromStdString(machine_.at(c.place)));
        }
        EXPECT_EQ(machine_.contents(place->toStdString()), "text");
        std::filesystem::remove_all(machine_.work());
        machine_.makeFolder("");
    }
}

TEST_F(BatchRunTest, leavesAloneWhatAScriptHasChanged) {
    for (const char* name : {"a.txt", "b.txt", "c.txt"})
        machine_.write(name, "");
    RuleAction script = makeAction(ActionType::runScript);
    script.scriptCommand = u"rm b.txt; echo more >> c.txt"_s;
    EXPECT_EQ(texts({ruleFor(u"clear"_s, u"a"_s, {script}),
                     ruleFor(u"rest"_s, u"txt"_s, {makeAction(ActionType::trash)})}),
              std::set<QString>{u"a.txt: clear: ran script"_s});
    EXPECT_EQ(machine_.tree(), (std::set<std::string>{"a.txt", "c.txt"}));
}

TEST_F(BatchRunTest, endsBetweenTwoFilesWhenAsked) {
    for (const char* name : {"a.txt", "b.txt", "c.txt"})
        machine_.write(name, "");
    settings_.mayContinue = [this] { return machine_.tree().contains("b.txt"); };
    const RunResult result = run({ruleFor(u"r"_s, u""_s, {makeAction(ActionType::trash)})});
    EXPECT_TRUE(result.interrupted);
    EXPECT_EQ(result.entries.size(), 2U);
    EXPECT_EQ(machine_.tree(), std::set<std::string>{"c.txt"});
}

/// Refuses the files whose keys it knows.
class Refusal : public RunRestraint {
public:
    QSet<QString> keys;
    bool hasActed(const Rule&, const QString& fileKey) const override {
        return keys.contains(fileKey);
    }
    bool mayAct(const Rule&, const QString& fileKey) override { return !keys.contains(fileKey); }
};

TEST_F(BatchRunTest, asksNothingAboutWhatARuleHasActedOn) {
    machine_.write("a.txt", "text");
    Refusal refusal;
    refusal.keys = run({}).seenKeys;
    settings_.restraint = &refusal;
    Rule asking = ruleFor(u"asking"_s, u"a"_s, {makeAction(ActionType::renameWithDobbin)});
    asking.conditions.push_back(
        {.attribute = ConditionAttribute::dobbinSays, .value = u"a bill"_s});
    const Rule later = ruleFor(u"later"_s, u"a"_s, {makeAction(ActionType::trash)});
    for (const MatchMode mode : {MatchMode::all, MatchMode::any}) {
        asking.matchMode = mode;
        EXPECT_TRUE(run({asking, later}).entries.empty());
        EXPECT_EQ(judge_.asked, 0);
    }
    asking.conditions[0].value = u"b"_s;
    asking.matchMode = MatchMode::all;
    refusal.keys.clear();
    EXPECT_EQ(run({asking, later}).entries.size(), 1U) << "not a file of that rule";

    machine_.write("a.txt", "text");
    asking.conditions = {{.attribute = ConditionAttribute::fullName, .value = u"a.txt"_s}};
    EXPECT_EQ(run({asking}).entries.size(), 1U);
    EXPECT_EQ(judge_.moved, std::vector<std::string>{"a.txt -> Invoice.txt"});
}

TEST_F(BatchRunTest, saysWhatARuleActedOnAndLeavesAloneWhatItMustNot) {
    const RuleAction nowhere = moveTo(u"relative"_s);
    const RuleAction copies = moveTo(u"~/work/Copies"_s, ActionType::copy);
    const RuleAction trash = makeAction(ActionType::trash);
    const struct {
        std::vector<RuleAction> actions;
        bool acted;
        QString after; ///< relative to the folder
        qsizetype copies = 0;
    } cases[] = {
        {{nowhere}, false, {}},
        {{renameBy(u"{name}"_s)}, false, {}},
        {{nowhere, renameBy(u"b"_s)}, true, u"b.txt"_s},
        {{moveTo(u"~/work/Out"_s)}, true, u"Out/a.txt"_s},
        {{copies}, true, u"a.txt"_s, 1},
        {{copies, trash}, true, {}, 1},
        {{runScript(u"false"_s)}, true, u"a.txt"_s},
        {{runScript(u"rm \"$1\""_s)}, true, {}},
        {{runShortcut(u"absent"_s)}, false, {}},
    };
    const QString root = QString::fromStdString(machine_.work()) + u'/';
    for (const auto& c : cases) {
        machine_.write("a.txt", "text");
        Refusal refusal;
        refusal.keys = run({}).seenKeys;
        settings_.restraint = &refusal;
        const std::vector<Rule> rules{ruleFor(u"r"_s, u"a.txt"_s, c.actions),
                                      ruleFor(u"later"_s, u"a.txt"_s, {trash})};
        const RunResult refused = run(rules);
        EXPECT_TRUE(refused.entries.empty() && refused.handled.empty());
        EXPECT_EQ(refused.seenKeys, refusal.keys);
        settings_.restraint = nullptr;

        const RunResult result = run(rules);
        SCOPED_TRACE(result.entries.empty() ? "" : result.entries[0].actionSummary.toStdString());
        ASSERT_EQ(result.handled.size(), c.acted ? 1U : 0U);
        if (c.acted) {
            const HandledFile& handled = result.handled[0];
            EXPECT_EQ(handled.keyBefore, *refusal.keys.begin());
            EXPECT_EQ(keyPath(handled.keyAfter), c.after.isEmpty() ? QString() : root + c.after);
            EXPECT_EQ(handled.copyKeys.size(), c.copies);
        }
        std::filesystem::remove_all(machine_.work());
        machine_.makeFolder("");
    }
}

TEST_F(BatchRunTest, touchesNothingWithoutItsJournal) {
    machine_.write("a.txt", "");
    journal_.isFull = true;
    const RunResult result = run({ruleFor(u"r"_s, u""_s, {makeAction(ActionType::trash)})});
    EXPECT_TRUE(result.stopped);
    EXPECT_TRUE(result.entries.empty());
    EXPECT_EQ(machine_.tree(), std::set<std::string>{"a.txt"});
}

} // namespace
} // namespace quillon::testing
