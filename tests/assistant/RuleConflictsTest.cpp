#include "assistant/RuleConflicts.h"

#include "assistant/DobbinJudge.h"
#include "support/FakeClock.h"
#include "support/LinuxMachine.h"
#include "support/MatchingFixture.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

#include <functional>

namespace quillon {

using namespace Qt::Literals::StringLiterals;
using testing::condition;

namespace {

using Attribute = ConditionAttribute;
using Op = MatchOperator;

/// Setup.dmg, which the first of two rules has moved from the folder to Apps, where it is a file of
/// 5 bytes.
class Scene {
public:
    testing::LinuxMachine machine;
    FakeClock clock;
    DobbinJudge judge{machine.platform.fileSystem, clock};
    WatchedFolder folder{
        .path = QString::fromStdString(machine.work()),
        .rules = {rule(u"Keep installers"_s, u"dmg"_s), rule(u"Later"_s, u"dmg"_s)}};
    LogEntry entry{.date = machine.platform.clock.now(),
                   .fileName = u"Setup.dmg"_s,
                   .ruleName = u"Keep installers"_s,
                   .folderID = folder.id,
                   .undoable = true,
                   .originalPath = folder.path + u"/Setup.dmg"_s};

    Scene() { lieAt(machine.home() + "/Apps/Setup.dmg"); }

    void lieAt(const std::string& path) {
        entry.currentPath = QString::fromStdString(machine.write(path, "12345"));
    }
    [[nodiscard]] std::string place() const { return entry.currentPath->toStdString(); }
    Rule& earlier() { return folder.rules[0]; }
    Rule& later() { return folder.rules[1]; }
    void laterAsks(Attribute attribute, Op op, const QString& value) {
        later().conditions = {condition(attribute, op, value)};
    }
    void goneFromDisk() { std::filesystem::remove(place()); }
    void answer(const std::string& path, bool matches) {
        const auto status = machine.platform.fileSystem.status(place());
        judge.recordVerdict(
            {.question = u"an app"_s,
             .file = {.path = path, .size = status->size, .modified = status->modified}},
            matches);
    }
    [[nodiscard]] std::size_t found() const {
        return conflicts({entry}, {folder}, machine.platform, judge).size();
    }

private:
    static Rule rule(const QString& name, const QString& extension) {
        Rule made;
        made.name = name;
        made.conditions = {condition(Attribute::extension, Op::is, extension)};
        made.actions.front().destination = u"~/Elsewhere"_s;
        return made;
    }
};

struct Case {
    const char* what;
    std::size_t conflicts;
    std::function<void(Scene&)> change;
};

const Case cases[] = {
    {"both match", 1, [](Scene&) {}},
    {"the later does not match", 0,
     [](Scene& s) { s.laterAsks(Attribute::extension, Op::is, u"pdf"_s); }},
    {"the later is off", 0, [](Scene& s) { s.later().isEnabled = false; }},
    {"the earlier is off by now", 0, [](Scene& s) { s.earlier().isEnabled = false; }},
    {"the later does nothing", 0, [](Scene& s) { s.later().actions.clear(); }},
    {"the later has no conditions", 0, [](Scene& s) { s.later().conditions.clear(); }},
    {"the order has changed", 0, [](Scene& s) { std::swap(s.earlier(), s.later()); }},
    {"the rule that acted has gone", 0, [](Scene& s) { s.entry.ruleName = u"Other"_s; }},
    {"two rules have the name of the one that acted", 0,
     [](Scene& s) { s.folder.rules.push_back(s.earlier()); }},
    {"of another folder", 0, [](Scene& s) { s.entry.folderID = QUuid::createUuid(); }},
    {"of no folder", 0, [](Scene& s) { s.entry.folderID.reset(); }},
    {"it was not moved", 0,
     [](Scene& s) {
         s.entry.undoable = false;
         s.entry.isError = true;
     }},
    {"it was renamed where it is", 0, [](Scene& s) { s.lieAt(s.machine.at("Setup 2.dmg")); }},
    {"it was sorted into a folder below", 1,
     [](Scene& s) { s.lieAt(s.machine.at("Apps/Setup.dmg")); }},
    {"which is tidied too", 0,
     [](Scene& s) {
         s.lieAt(s.machine.at("Apps/Setup.dmg"));
         s.folder.isRecursive = true;
     }},
    {"it was below the folder when only the folder itself is tidied", 0,
     [](Scene& s) { s.entry.originalPath = s.folder.path + u"/deep/Setup.dmg"_s; }},
    {"it was below a folder that is tidied whole", 1,
     [](Scene& s) {
         s.entry.originalPath = s.folder.path + u"/deep/Setup.dmg"_s;
         s.folder.isRecursive = true;
     }},
    {"it is in the Trash", 1,
     [](Scene& s) {
         s.entry.trashedPath = s.entry.currentPath;
         s.entry.currentPath.reset();
         s.laterAsks(Attribute::size, Op::lessThan, u"1"_s);
     }},
    {"it was renamed on the way, and is known by its old name", 1,
     [](Scene& s) {
         s.lieAt(s.machine.home() + "/Apps/2026 installer.bin");
         s.laterAsks(Attribute::fullName, Op::is, u"Setup.dmg"_s);
     }},
    {"and not by the new one", 0,
     [](Scene& s) {
         s.lieAt(s.machine.home() + "/Apps/2026 installer.bin");
         s.laterAsks(Attribute::name, Op::contains, u"2026"_s);
     }},
    {"it is gone, and the later asks for its name", 1, [](Scene& s) { s.goneFromDisk(); }},
    {"it is gone, and the later asks for its size", 0,
     [](Scene& s) {
         s.laterAsks(Attribute::size, Op::lessThan, u"1"_s);
         s.goneFromDisk();
     }},
    {"it is gone, and the later asks what it is not", 0,
     [](Scene& s) {
         s.laterAsks(Attribute::tag, Op::isNot, u"red"_s);
         s.goneFromDisk();
     }},
    {"the later asks for its kind", 1,
     [](Scene& s) { s.laterAsks(Attribute::kind, Op::is, u"archive"_s); }},
    {"the later asks for its tag", 1,
     [](Scene& s) {
         s.laterAsks(Attribute::tag, Op::is, u"red"_s);
         ASSERT_TRUE(s.machine.platform.tags.add(s.place(), u"Red"_s, 6));
     }},
    {"which the earlier may have given it", 0,
     [](Scene& s) {
         s.laterAsks(Attribute::tag, Op::is, u"red"_s);
         s.earlier().actions.push_back({.type = ActionType::addTag, .tag = TagColor::red});
         ASSERT_TRUE(s.machine.platform.tags.add(s.place(), u"Red"_s, 6));
     }},
    {"the later asks how old it was then", 1,
     [](Scene& s) {
         s.laterAsks(Attribute::dateModified, Op::withinLastDays, u"3"_s);
         s.entry.date += std::chrono::days(2);
     }},
    {"and it was too old", 0,
     [](Scene& s) {
         s.laterAsks(Attribute::dateModified, Op::withinLastDays, u"3"_s);
         s.entry.date += std::chrono::days(4);
     }},
    {"Dobbin has said yes of it here", 1,
     [](Scene& s) {
         s.laterAsks(Attribute::dobbinSays, Op::is, u"an app"_s);
         s.answer(s.place(), true);
     }},
    {"Dobbin had said yes of it there", 1,
     [](Scene& s) {
         s.laterAsks(Attribute::dobbinSays, Op::is, u"an app"_s);
         s.answer(s.entry.originalPath->toStdString(), true);
     }},
    {"Dobbin has said no of it", 0,
     [](Scene& s) {
         s.laterAsks(Attribute::dobbinSays, Op::is, u"an app"_s);
         s.answer(s.place(), false);
     }},
    {"Dobbin has said nothing of it", 0,
     [](Scene& s) { s.laterAsks(Attribute::dobbinSays, Op::isNot, u"an app"_s); }},
    {"the later would have Dobbin name it", 1,
     [](Scene& s) { s.later().actions.front().type = ActionType::renameWithDobbin; }},
};

} // namespace

TEST(RuleConflictsTest, FindsTheRulesThatCompetedForAFile) {
    for (const Case& one : cases) {
        SCOPED_TRACE(one.what);
        Scene scene;
        one.change(scene);
        EXPECT_EQ(scene.found(), one.conflicts);
        EXPECT_FALSE(scene.judge.hasPending()) << "a question was queued";
    }
}

TEST(RuleConflictsTest, NamesThemInOrderAndIsBounded) {
    Scene scene;
    scene.folder.rules.push_back(scene.later());
    scene.folder.rules.back().id = QUuid::createUuid();
    scene.folder.rules.back().name = u"Last"_s;
    const auto found =
        conflicts({scene.entry, scene.entry}, {scene.folder}, scene.machine.platform, scene.judge);
    ASSERT_EQ(found.size(), 2U) << "said twice";
    EXPECT_EQ(found[0].earlierID, scene.earlier().id);
    EXPECT_EQ(found[0].laterID, scene.later().id);
    EXPECT_EQ(
        found[1].sentence(),
        u"Setup.dmg also matches “Last”, but “Keep installers” comes first in work and moved "
        "it, so “Last” never saw it. Moving “Last” above “Keep installers” would fix that."_s);

    std::vector<LogEntry> many;
    for (int i = 0; i < 40; ++i) {
        many.push_back(scene.entry);
        many.back().fileName = QString::number(i) + u".dmg"_s;
        many.back().originalPath = scene.folder.path + u'/' + many.back().fileName;
    }
    EXPECT_EQ(conflicts(many, {scene.folder}, scene.machine.platform, scene.judge).size(), 25U);
    scene.folder.rules.pop_back();
    const auto bounded = conflicts(many, {scene.folder}, scene.machine.platform, scene.judge);
    ASSERT_EQ(bounded.size(), 25U);
    EXPECT_EQ(bounded.back().fileName, u"24.dmg"_s);
}

} // namespace quillon
