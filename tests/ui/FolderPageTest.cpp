#include "ui/folders/FolderPage.h"

#include "model/Uuid.h"
#include "support/AppStoreBench.h"
#include "support/FakeDesktop.h"
#include "support/PrintQt.h"
#include "support/SystemTimeZone.h"
#include "ui/folders/EntryCommands.h"

#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

struct FolderPageTest : ::testing::Test {
    SystemTimeZone zone{"UTC"};
    AppStoreBench bench;
    FakeDesktop desktop;
    Toasts toasts;
    FolderPage page{{.store = *bench.store,
                     .platform = bench.platform,
                     .background = bench.background,
                     .timers = bench.timers,
                     .fileChooser = desktop,
                     .toasts = toasts}};
    EntryCommands entries{{.store = *bench.store,
                           .fileSystem = bench.platform.fileSystem,
                           .background = bench.background,
                           .fileManager = desktop,
                           .toasts = toasts}};
    QUuid folder = bench.addFolder("in");

    void write(const std::string& name) {
        bench.disk.machine.write("in/" + name, "x");
        bench.touch("in/" + name, bench.clock.now() - 1h);
    }
    const std::vector<ActivityEntry>& activity() {
        return static_cast<KeyedRows<ActivityEntry>*>(page.activity())->rows();
    }
    QStringList rules() {
        QStringList names;
        for (const RuleRow& row : page.rules()->rows())
            names.append(row.name);
        return names;
    }
};

TEST_F(FolderPageTest, TellsWhereTheFolderIsHowFullAndWhenItWasTidied) {
    const QString path = u"~/work/in"_s;
    bench.store->setTiming(TidyTiming::manual, folder);
    EXPECT_EQ(page.details(), path + u" · 0 files"_s);
    write("a.txt");
    write("b.pdf");
    bench.addRule(bench.mover(u"txt"_s, "out"), folder);
    EXPECT_EQ(page.details(), path + u" · 1 file · tidied just now"_s);
    bench.pass(4min);
    EXPECT_EQ(page.details(), path + u" · 1 file · tidied 4 minutes ago"_s);
}

TEST_F(FolderPageTest, TellsWhatCameOfARunByHandAndSpinsOnlyWhenItIsSlow) {
    bench.store->setTiming(TidyTiming::manual, folder);
    bench.addRule(bench.mover(u"txt"_s, "out"), folder);
    write("a.txt");
    bench.store->runRules(folder, RunCause::asked); // by Dobbin
    EXPECT_FALSE(page.isRunning());
    bench.pass(400ms);
    EXPECT_TRUE(page.isRunning());
    EXPECT_TRUE(page.details().endsWith(u"Tidying…"_s));
    bench.background.finish();
    EXPECT_FALSE(page.isRunning());
    EXPECT_EQ(toasts.sentence(), u"Filed 1 file in in."_s);
    page.run();
    bench.background.finish();
    EXPECT_EQ(toasts.sentence(), u"in is already tidy."_s);
    // What was looked at is tidied, whatever is selected by then.
    bench.store->setSelectedFolderID(bench.addFolder("other"));
    write("c.txt");
    page.runFolder(uuidText(folder));
    bench.background.finish();
    EXPECT_EQ(toasts.sentence(), u"Filed 1 file in in."_s);
    bench.store->setSelectedFolderID(folder);

    bench.disk.machine.write("in the way", "x");
    bench.addRule(bench.mover(u"pdf"_s, "in the way"), folder);
    write("b.pdf");
    page.run();
    bench.background.finish();
    EXPECT_EQ(toasts.sentence(), u"1 file in in couldn’t be filed."_s);
    page.run();
    bench.background.finish();
    EXPECT_EQ(bench.store->recentErrorCount(folder), 2U);
    EXPECT_EQ(page.banner().text, u"1 file couldn’t be filed today"_s);
    EXPECT_TRUE(activity().front().isError);
    EXPECT_FALSE(activity().front().canUndo);
}

TEST_F(FolderPageTest, ShowsTheGravestTroubleAlone) {
    EXPECT_TRUE(page.banner().kind.isEmpty());
    bench.watching.warn(bench.disk.machine.at("in"), u"“in” is on a network drive"_s);
    bench.background.finish();
    EXPECT_EQ(page.banner().text,
              u"in can't be watched live, so Quillon checks it every few minutes."_s);
    page.setTiming(int(TidyTiming::hourly));
    bench.store->setPaused(true);
    EXPECT_EQ(page.banner().text, u"Paused — nothing runs automatically"_s);
    std::filesystem::remove_all(bench.disk.machine.at("in"));
    bench.store->refreshAccess();
    bench.background.finish();
    EXPECT_EQ(page.banner().text, u"in can’t be found"_s);
    EXPECT_EQ(page.banner().actions, (QStringList{u"Locate…"_s, u"Remove"_s}));
    EXPECT_FALSE(page.canRun());
    bench.breakSaving();
    page.setRecursive(true);
    EXPECT_EQ(page.banner().kind, u"error"_s);
    EXPECT_EQ(page.banner().text,
              u"Quillon can’t save your changes: "_s + bench.store->lastSaveError()->message);
    bench.mendSaving();
    page.setRecursive(false);
    bench.disk.machine.makeFolder("in");
    bench.store->refreshAccess();
    bench.background.finish();
    page.actOnBanner(0); // resume
    EXPECT_TRUE(page.banner().kind.isEmpty());
}

TEST_F(FolderPageTest, KeepsTheRowsOfRulesWhileTheyChange) {
    bench.store->setTiming(TidyTiming::manual, folder);
    for (const char16_t* kind : {u"a", u"b", u"c"})
        bench.addRule(bench.mover(QString::fromUtf16(kind), "out"), folder);
    int lost = 0;
    QObject::connect(page.rules(), &QAbstractItemModel::modelReset, [&] { ++lost; });
    QObject::connect(page.rules(), &QAbstractItemModel::rowsRemoved, [&] { ++lost; });
    RuleListModel& list = *page.rules();
    const QString first = list.rows().front().key;
    EXPECT_EQ(list.rows().front().conditionText, u"If extension is “a”"_s);
    EXPECT_EQ(list.rows().front().actionText, u"Move to out"_s);
    list.moveBefore(first, 3);
    EXPECT_EQ(rules(), (QStringList{u"Move b"_s, u"Move c"_s, u"Move a"_s}));
    list.setEnabled(first, false);
    EXPECT_TRUE(list.row(first)->description.contains(u"Rule 3 of 3, off"_s));
    list.duplicate(first);
    list.moveBy(first, -1);
    EXPECT_EQ(rules(), (QStringList{u"Move b"_s, u"Move a"_s, u"Move c"_s, u"Move a copy"_s}));
    EXPECT_EQ(lost, 0);
    list.remove(first);
    EXPECT_EQ(list.rowCount(), 3);
    toasts.act();
    EXPECT_EQ(rules(), (QStringList{u"Move b"_s, u"Move a"_s, u"Move c"_s, u"Move a copy"_s}));
}

TEST_F(FolderPageTest, ImportsRulesThatCanBeTakenBackAndRefusesOtherFiles) {
    bench.addRule(bench.mover(u"txt"_s, "out"), folder);
    desktop.choice = bench.disk.machine.at("rules.json");
    page.exportRules();
    page.importRules();
    EXPECT_EQ(toasts.sentence(), u"1 rule added from a file"_s);
    EXPECT_EQ(page.rules()->rowCount(), 2);
    toasts.act();
    EXPECT_EQ(page.rules()->rowCount(), 1);
    bench.disk.machine.write("rules.json", "no rules");
    page.importRules();
    EXPECT_EQ(toasts.sentence(), u"That file isn’t a list of Quillon rules."_s);
}

TEST_F(FolderPageTest, PutsAFileBackAndShowsWhereOneIs) {
    write("a.txt");
    write("b.txt");
    bench.addRule(bench.mover(u"txt"_s, "out"), folder);
    ASSERT_EQ(activity().size(), 2U);
    const ActivityEntry entry = activity().front();
    const std::string name = entry.fileName.toStdString();
    EXPECT_EQ(entry.secondLine, u"Move txt · moved to out"_s);

    entries.reveal(entry.key);
    bench.background.finish();
    EXPECT_EQ(desktop.revealed.back(), bench.disk.machine.at("out/" + name));
    bench.store->setTiming(TidyTiming::manual, folder);
    entries.undo(page.newestUndoable());
    bench.background.finish();
    EXPECT_TRUE(toasts.sentence().startsWith(u"Put back "_s + entry.fileName));
    EXPECT_TRUE(std::filesystem::exists(bench.disk.machine.at("in/" + name)));

    const ActivityEntry other = activity().front();
    std::filesystem::remove_all(bench.disk.machine.at("out"));
    entries.reveal(other.key);
    entries.undo(other.key);
    bench.background.finish();
    EXPECT_EQ(desktop.revealed.back(), bench.disk.machine.at("out"));
    EXPECT_EQ(toasts.sentence(),
              u"Couldn’t put %1 back. It has moved or gone."_s.arg(other.fileName));
}

} // namespace
} // namespace quillon::testing
