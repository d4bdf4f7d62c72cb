#include "engine/Actions.h"

#include "platform/FileNames.h"
#include "platform/FileTags.h"
#include "support/ActionBench.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace testing;
using Tree = std::set<std::string>;
using enum ActionType;

struct Case {
    RuleAction action;
    std::string file;
    QString logText;
    Tree after;
};

const auto asRed = [](RuleAction& action) { action.tag = TagColor::red; };

TEST(Actions, LogWhatTheyDid) {
    const Tree before{"a.txt", "b.txt", "In/", "In/a.txt", "In/a 2.txt", "plain"};
    const auto with = [&](Tree gone, const Tree& added) {
        Tree tree = before;
        for (const std::string& name : gone)
            tree.erase(name);
        tree.insert(added.begin(), added.end());
        return tree;
    };
    const QString absent = u"~/work/New/Deep"_qs;
    const Case cases[] = {
        {moveTo(u"~/work/In"_qs), "a.txt", u"moved to In"_qs, with({"a.txt"}, {"In/a 3.txt"})},
        {moveTo(u"~/work/In///"_qs), "b.txt", u"moved to In"_qs, with({"b.txt"}, {"In/b.txt"})},
        {moveTo(u"~/./work//In/."_qs), "b.txt", u"moved to In"_qs, with({"b.txt"}, {"In/b.txt"})},
        {moveTo(u"~/work/In/.."_qs), "In/a 2.txt", u"moved to work"_qs,
         with({"In/a 2.txt"}, {"a 2.txt"})},
        {moveTo(absent), "a.txt", u"moved to Deep"_qs,
         with({"a.txt"}, {"New/", "New/Deep/", "New/Deep/a.txt"})},
        {moveTo(u"~/work"_qs), "a.txt", {}, before},
        {moveTo(u"~/work/In/.."_qs), "a.txt", {}, before},
        {moveTo(u"~/work/In"_qs), "In", {}, before},
        {moveTo(u"~/work/In/x/y"_qs), "In", {}, before},
        {moveTo(u"~"_qs), "b.txt", u"moved to home"_qs, with({"b.txt"}, {})},
        {moveTo({}), "a.txt", u"FAILED: move failed: no folder set"_qs, before},
        {moveTo(u"In"_qs), "a.txt", u"FAILED: move failed: “In” is not a full path"_qs, before},
        {moveTo(u"~root/x"_qs), "a.txt", u"FAILED: move failed: “~root/x” is not a full path"_qs,
         before},
        {moveTo(u"~/work/plain"_qs), "a.txt", u"FAILED: move failed: Not a directory"_qs, before},
        {moveTo(u"~/work/plain/x"_qs), "a.txt", u"FAILED: move failed: Not a directory"_qs, before},
        {moveTo(absent), "gone.txt", u"FAILED: move failed: No such file or directory"_qs, before},

        {moveTo(u"~/work/In"_qs, copy), "a.txt", u"copied to In"_qs, with({}, {"In/a 3.txt"})},
        {moveTo(absent, copy), "a.txt", u"copied to Deep"_qs,
         with({}, {"New/", "New/Deep/", "New/Deep/a.txt"})},
        {moveTo(u"~/work"_qs, copy), "a.txt", {}, before},
        {moveTo(u"~/work/In"_qs, copy), "In", {}, before},
        {makeAction(copy), "a.txt", u"FAILED: copy failed: no folder set"_qs, before},

        {renameBy(u"{name}-x"_qs), "a.txt", u"renamed to a-x.txt"_qs, with({"a.txt"}, {"a-x.txt"})},
        {renameBy(u"b"_qs), "a.txt", u"renamed to b 2.txt"_qs, with({"a.txt"}, {"b 2.txt"})},
        {renameBy({}), "a.txt", {}, before},
        {renameBy(u"x"_qs), "gone.txt", u"FAILED: rename failed: No such file or directory"_qs,
         before},
        {makeAction(renameWithDobbin), "a.txt", u"FAILED: rename failed: no name yet"_qs, before},

        {makeAction(addTag, asRed), "a.txt", u"tagged red"_qs, before},
        {makeAction(addTag, asRed), "gone.txt", u"FAILED: tagging failed"_qs, before},
        {makeAction(removeTag, asRed), "a.txt", {}, before},
        {makeAction(removeTag, asRed), "gone.txt", u"FAILED: untagging failed"_qs, before},

        {sortBy(SortStrategy::byExtension), "a.txt", u"sorted into TXT"_qs,
         with({"a.txt"}, {"TXT/", "TXT/a.txt"})},
        {sortBy(SortStrategy::byKind), "plain", u"sorted into Other"_qs,
         with({"plain"}, {"Other/", "Other/plain"})},

        {makeAction(trash), "a.txt", u"moved to Trash"_qs, with({"a.txt"}, {})},
        {makeAction(trash), "gone.txt", u"FAILED: trash failed: No such file or directory"_qs,
         before},
    };
    for (const Case& c : cases) {
        ActionBench bench;
        for (const std::string& name : before)
            if (!name.ends_with('/'))
                bench.machine.write(name, "contents of " + name);
        SCOPED_TRACE(rawValue(c.action.type).toStdString() + " on " + c.file);
        EXPECT_EQ(bench.logText(c.action, c.file), c.logText);
        EXPECT_EQ(bench.machine.tree(), c.after);
        EXPECT_EQ(bench.machine.contents("In/a.txt"), "contents of In/a.txt");
    }
}

TEST(Actions, SayWhereTheFileIsNow) {
    ActionBench bench;
    bench.machine.write("a.txt", "text");
    const ActionResult copied = bench.perform(moveTo(u"~/work/Copies"_qs, copy), "a.txt");
    EXPECT_EQ(copied.place, ActionResult::Place::same);
    EXPECT_EQ(copied.path, bench.machine.at("a.txt"));
    EXPECT_EQ(bench.machine.contents(copied.copyPath), "text");

    const ActionResult moved = bench.perform(moveTo(u"~/work/In"_qs), "a.txt");
    EXPECT_EQ(moved.place, ActionResult::Place::moved);
    EXPECT_EQ(moved.path, bench.machine.at("In/a.txt"));

    const ActionResult trashed = bench.perform(makeAction(trash), "In/a.txt");
    EXPECT_EQ(trashed.place, ActionResult::Place::gone);
    EXPECT_EQ(bench.machine.contents(trashed.trashedPath), "text");
}

TEST(Actions, RefuseAFileInTheSubfoldersPlace) {
    ActionBench bench;
    bench.machine.write("TXT", "in the way");
    bench.machine.write("a.txt", "text");
    EXPECT_EQ(bench.logText(sortBy(SortStrategy::byExtension), "a.txt"),
              u"FAILED: sort failed: Not a directory"_qs);
    EXPECT_EQ(bench.machine.tree(), (Tree{"TXT", "a.txt"}));
}

TEST(Actions, GiveTheAssistantsName) {
    ActionBench bench;
    bench.machine.write("scan.pdf", "");
    ActionContext context = bench.contextOf("scan.pdf");
    context.smartName = u"2026-10-14 Amazon £42.50"_qs;
    EXPECT_EQ(performAction(makeAction(renameWithDobbin), context).phrases,
              QStringList{u"renamed to 2026-10-14 Amazon £42.50.pdf"_qs});
}

// One run over all files below the folder, or over what lies in the folder itself; returns the
// texts.
QStringList runOverAll(ActionBench& bench, const std::vector<RuleAction>& actions,
                       bool isRecursive = true) {
    QStringList texts;
    const auto listing = bench.machine.platform.fileSystem.list(
        bench.machine.work(), {.recursive = isRecursive, .isPackage = nullptr});
    for (const ListedFile& file : listing.value().files) {
        ActionContext context = bench.contextOf(file.path);
        for (const RuleAction& action : actions) {
            const ActionResult result = performAction(action, context);
            texts += result.phrases;
            if (result.place == ActionResult::Place::gone)
                break;
            context.path = result.path;
            context.status = bench.machine.platform.fileSystem.status(context.path).value();
        }
    }
    return texts;
}

TEST(Actions, AreHarmlessTheSecondTime) {
    using enum SortStrategy;
    const std::vector<std::vector<RuleAction>> rules{
        {moveTo(u"~/work/In"_qs)},     {moveTo(u"~/Copies"_qs, copy), makeAction(addTag, asRed)},
        {renameBy(u"{date:yyyy}"_qs)}, {sortBy(byKind)},
        {sortBy(byExtension)},         {sortBy(byKind), sortBy(byMonth)},
    };
    for (std::size_t i = 0; i < rules.size(); ++i) {
        SCOPED_TRACE(i);
        ActionBench bench;
        for (const char* name : {"a.txt", "b.txt", "c.txt", "x.png", "README", "sub/a.txt"})
            bench.machine.write(name, name);
        EXPECT_GE(runOverAll(bench, rules[i]).size(), 6);
        const Tree once = bench.machine.tree();
        EXPECT_EQ(runOverAll(bench, rules[i]), QStringList());
        EXPECT_EQ(bench.machine.tree(), once);
    }
}

TEST(Actions, SortFoldersOnceAndNeverTheirOwn) {
    for (const SortStrategy strategy : allCases<SortStrategy>()) {
        SCOPED_TRACE(rawValue(strategy).toStdString());
        ActionBench bench;
        for (const char* name : {"a.txt", "a.groß", "b.png", "c.", "Trip/a.txt", "Old.d/b.txt"})
            bench.machine.write(name, name);
        EXPECT_EQ(runOverAll(bench, {sortBy(strategy)}, false).size(), 6);
        const Tree once = bench.machine.tree();
        EXPECT_EQ(runOverAll(bench, {sortBy(strategy)}, false), QStringList());
        EXPECT_EQ(bench.machine.tree(), once);
    }
}

TEST(Actions, GiveTagsTheNumbersOfTheFinder) {
    class Recorder : public FileTags {
    public:
        QStringList added;
        Expected<QStringList> tags(const std::string&) const override { return QStringList(); }
        Expected<bool> remove(const std::string&, const QString&) override { return false; }
        Expected<bool> add(const std::string&, const QString& name, int number) override {
            added.append(name + QString::number(number));
            return true;
        }
    };
    Recorder recorder;
    ActionBench bench;
    const Platform& real = bench.machine.platform;
    const Platform platform{real.fileSystem, real.trash,        recorder,       real.provenance,
                            real.cloudFiles, real.contentTypes, real.processes, real.archives,
                            real.clock,      real.folders};
    for (const TagColor color : allCases<TagColor>()) {
        const auto colored = [&](RuleAction& action) { action.tag = color; };
        EXPECT_TRUE(
            performAction(makeAction(addTag, colored), bench.contextOf("a", platform)).succeeded);
    }
    EXPECT_EQ(recorder.added, (QStringList{u"Red6"_qs, u"Orange7"_qs, u"Yellow5"_qs, u"Green2"_qs,
                                           u"Blue4"_qs, u"Purple3"_qs, u"Gray1"_qs}));
}

TEST(Actions, AreDescribedForThePreview) {
    ActionBench bench;
    bench.machine.write("a.b.png", "");
    struct Row {
        RuleAction action;
        QString expected;
    };
    const Row rows[] = {
        {moveTo(u"~/Pictures/"_qs), u"Move to Pictures"_qs},
        {makeAction(move), u"Move to (no folder set)"_qs},
        {moveTo(u"/srv/Backup"_qs, copy), u"Copy to Backup"_qs},
        {moveTo(u"/srv/Backup/./"_qs, copy), u"Copy to Backup"_qs},
        {moveTo(u"/srv/Absent/x/.."_qs, copy), u"Copy to Absent"_qs},
        {moveTo(u""_qs, copy), u"Copy to (no folder set)"_qs},
        {renameBy(u"{counter:2}/{name}"_qs), u"Rename → 01-a.b.png"_qs},
        {renameBy({}), u"Rename → a.b.png"_qs},
        {makeAction(renameWithDobbin), u"Rename with Dobbin"_qs},
        {makeAction(addTag, asRed), u"Tag Red"_qs},
        {makeAction(removeTag, asRed), u"Remove tag Red"_qs},
        {sortBy(SortStrategy::byKind), u"Sort into Images"_qs},
        {unpackArchive(false), u"Unpack archive"_qs},
        {unpackArchive(true), u"Unpack archive (keep original)"_qs},
        {makeAction(ActionType::runShortcut), u"Run Shortcut"_qs},
        {makeAction(ActionType::runScript), u"Run shell script"_qs},
        {makeAction(trash), u"Move to Trash"_qs},
    };
    for (const Row& row : rows)
        EXPECT_EQ(describeAction(row.action, bench.contextOf("a.b.png")), row.expected);
    EXPECT_EQ(bench.machine.tree(), Tree{"a.b.png"});
}

} // namespace
} // namespace quillon
