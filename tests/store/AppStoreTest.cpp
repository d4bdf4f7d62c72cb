#include "model/Uuid.h"
#include "support/AppStoreBench.h"
#include "support/FullDisk.h"
#include "support/PrintQt.h"

#include <thread>

namespace quillon {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::AppStoreBench;
using namespace std::chrono_literals;

TEST(AppStore, rewritesTheFileAtLaunchAndWritesAllBackWithTheNextSave) {
    AppStoreBench bench;
    const QUuid folderID = bench.addFolder("in");
    bench.addRule(bench.mover(u"pdf"_s, "out"), folderID);
    bench.disk.machine.write("in/a.pdf", "a");
    bench.store->runRules(folderID);
    bench.background.finish();
    const PersistedState before = bench.saved();
    ASSERT_EQ(before.logs.size(), 1U);

    bench.start();
    EXPECT_EQ(bench.store->recentLogs(), before.logs);
    EXPECT_EQ(bench.store->selectedFolderID(), folderID);
    EXPECT_EQ(bench.saved().folders, before.folders);
    EXPECT_TRUE(bench.saved().logs.empty());
    bench.store->setColor(3, folderID);
    EXPECT_EQ(bench.saved().logs, before.logs);
    EXPECT_EQ(bench.saved().processedFiles, before.processedFiles);

    bench.start(AppStore::Life::command);
    EXPECT_EQ(bench.saved().logs, before.logs);
    EXPECT_TRUE(bench.watching.paths().empty());
    EXPECT_EQ(bench.timers.waiting(), 0U);
}

TEST(AppStore, findsAFolderAgainThatMovedWithItsRulesAndWhatCountedAsHandled) {
    AppStoreBench bench;
    const QUuid folderID = bench.addFolder("in");
    bench.addFolder("other");
    bench.addRule(bench.mover(u"pdf"_s, "out"), folderID);
    bench.disk.machine.write("in/old.pdf", "a");
    bench.store->setOnlyNewFiles(true, folderID);
    bench.background.finish();
    std::filesystem::rename(bench.disk.machine.at("in"), bench.disk.machine.at("moved"));
    bench.touch("moved/old.pdf", bench.clock.now() - 1h);

    EXPECT_FALSE(bench.store->relocateFolder(bench.path("other"), folderID));
    EXPECT_FALSE(bench.store->relocateFolder(bench.path("moved"), QUuid::createUuid()));
    EXPECT_TRUE(bench.store->relocateFolder(bench.path("moved") + u'/', folderID));
    bench.background.finish();
    EXPECT_EQ(bench.saved().folders.front().path, bench.path("moved"));
    EXPECT_EQ(bench.saved().folders.front().rules.size(), 1U);
    EXPECT_EQ(std::ranges::count(bench.watching.paths(), bench.disk.machine.at("moved")), 1);
    EXPECT_TRUE(std::filesystem::exists(bench.disk.machine.at("moved/old.pdf")));
}

TEST(AppStore, readsAFileWithoutTheKeysThatMayBeAbsent) {
    AppStoreBench bench;
    bench.store.reset();
    ASSERT_TRUE(
        bench.disk.storage.writeDurably(bench.disk.places.state(), R"({"folders":[],"logs":[]})"));
    bench.start();
    EXPECT_TRUE(bench.store->processedFiles().isEmpty());
    EXPECT_FALSE(bench.store->isPaused());
    EXPECT_TRUE(bench.store->openingWarnings().isEmpty());
}

TEST(AppStore, addsAFolderOnceAndTidiesItAtOnce) {
    AppStoreBench bench;
    const std::string in = bench.disk.machine.makeFolder("in");
    EXPECT_EQ(bench.runs([&] { bench.store->addFolder(bench.path("in")); }), 1U);
    EXPECT_EQ(bench.watching.paths(), std::vector{in});
    for (const char* same : {"in", "in/", "../work/in", "x/..//in"})
        EXPECT_EQ(
            bench.runs([&] { EXPECT_EQ(bench.store->addFolder(bench.path(same)), std::nullopt); }),
            0U)
            << same;
    EXPECT_EQ(bench.saved().folders.size(), 1U);

    const QUuid cloud = bench.addFolder("Library/CloudStorage/x");
    EXPECT_TRUE(bench.store->folder(cloud)->skipOnlineOnly);
    EXPECT_EQ(bench.store->selectedFolderID(), cloud);
    bench.store->removeFolder(cloud);
    EXPECT_EQ(bench.store->selectedFolderID(), bench.store->folders().front().id);
    EXPECT_EQ(bench.watching.paths(), std::vector{in});
    bench.store->removeFolder(cloud);
    EXPECT_EQ(bench.store->folders().size(), 1U);
}

TEST(AppStore, keepsTheTimingsOfAPauseAndTidiesEachFolderAfterIt) {
    AppStoreBench bench;
    const QUuid live = bench.addFolder("live");
    const QUuid hourly = bench.addFolder("hourly");
    bench.store->setTiming(TidyTiming::hourly, hourly);
    bench.store->setPaused(true);
    EXPECT_TRUE(bench.watching.paths().empty());
    EXPECT_TRUE(bench.saved().isPaused);
    EXPECT_EQ(bench.saved().folders[0].timing(), TidyTiming::live);

    EXPECT_EQ(bench.runs([&] { bench.pass(2h); }), 0U);
    EXPECT_EQ(bench.runs([&] { bench.store->runRules(hourly, RunCause::asked); }), 1U);
    EXPECT_EQ(bench.runs([&] { bench.store->setPaused(false); }), 2U);
    EXPECT_EQ(bench.reports.front().folderID, live);
    EXPECT_EQ(bench.watching.paths(), std::vector{bench.disk.machine.at("live")});
    EXPECT_EQ(bench.runs([&] { bench.store->setPaused(false); }), 0U);
}

TEST(AppStore, tidiesByTheClock) {
    AppStoreBench bench;
    const QUuid hourly = bench.addFolder("hourly");
    EXPECT_EQ(bench.runs([&] { bench.store->setTiming(TidyTiming::hourly, hourly); }), 0U);
    EXPECT_EQ(bench.runs([&] { bench.pass(59min); }), 0U);
    EXPECT_EQ(bench.runs([&] { bench.pass(1min); }), 1U);
    bench.start();
    EXPECT_EQ(bench.runs([&] { bench.pass(59min); }), 0U);
    EXPECT_EQ(bench.runs([&] { bench.pass(1min); }), 1U);

    // Files of a live folder age without any event.
    EXPECT_EQ(bench.runs([&] { bench.store->setTiming(TidyTiming::live, hourly); }), 1U);
    EXPECT_EQ(bench.runs([&] { bench.pass(24h); }), 0U);
    Rule old = bench.mover(u"7"_s, "out");
    old.conditions.front().attribute = ConditionAttribute::dateModified;
    old.conditions.front().op = MatchOperator::olderThanDays;
    bench.addRule(old, hourly);
    EXPECT_EQ(bench.runs([&] { bench.pass(1min); }), 1U);
    EXPECT_EQ(bench.runs([&] { bench.pass(23h); }), 0U);
    EXPECT_EQ(bench.runs([&] { bench.pass(1h); }), 1U);
}

TEST(AppStore, leavesWhatWasThereAloneInFoldersForNewFiles) {
    AppStoreBench bench;
    const QUuid folderID = bench.addFolder("in");
    bench.disk.machine.write("in/old.pdf", "a");
    bench.store->setOnlyNewFiles(true, folderID);
    bench.background.finish();
    EXPECT_EQ(bench.saved().processedFiles.value(uuidText(folderID)).size(), 1);
    bench.addRule(bench.mover(u"pdf"_s, "out"), folderID);
    bench.disk.machine.write("in/new.pdf", "b");
    bench.store->runRules(folderID, RunCause::asked);
    bench.background.finish();
    EXPECT_EQ(bench.disk.machine.tree(),
              (std::set<std::string>{"in/", "in/old.pdf", "out/", "out/new.pdf"}));

    // What has been taken back is no new file either.
    bench.store->undo({bench.store->recentLogs().front().id}, {});
    bench.background.finish();
    EXPECT_EQ(bench.runs([&] { bench.store->runRules(folderID); }), 1U);
    EXPECT_TRUE(bench.disk.machine.tree().contains("in/new.pdf"));

    std::filesystem::rename(bench.disk.machine.at("in"), bench.disk.machine.at("away"));
    bench.store->setOnlyNewFiles(true, folderID);
    bench.background.finish();
    std::filesystem::rename(bench.disk.machine.at("away"), bench.disk.machine.at("in"));
    bench.store->runRules(folderID, RunCause::asked);
    bench.background.finish();
    EXPECT_TRUE(bench.disk.machine.tree().contains("in/old.pdf"));
}

TEST(AppStore, missesNothingThatComesWhileTheFilesThatAreThereAreListed) {
    AppStoreBench bench;
    const QUuid folderID = bench.addFolder("in");
    bench.disk.machine.write("in/old.pdf", "a");
    bench.clock.set(std::chrono::file_clock::to_sys(
                        std::filesystem::last_write_time(bench.disk.machine.at("in/old.pdf"))) +
                    1ms);
    while (std::chrono::system_clock::now() < bench.clock.now() + 20ms)
        std::this_thread::sleep_for(1ms);
    bench.store->setOnlyNewFiles(true, folderID);
    bench.store->addRules({bench.mover(u"pdf"_s, "out")}, folderID, RuleSource::manual);
    EXPECT_TRUE(bench.store->wantsOnlyNewFiles(folderID));
    EXPECT_FALSE(bench.saved().folders.front().onlyNewFiles)
        << "after a crash now, the old files would count as new";
    bool isOver = false;
    bench.store->afterRuns(bench.store->lastRunNumber(), [&] { isOver = true; });
    bench.disk.machine.write("in/new.pdf", "b");
    bench.clock.advance(1h);
    EXPECT_FALSE(isOver);
    bench.background.finish();
    EXPECT_TRUE(isOver);
    EXPECT_TRUE(bench.saved().folders.front().onlyNewFiles);
    EXPECT_TRUE(bench.disk.machine.tree().contains("in/old.pdf"));
    EXPECT_TRUE(bench.disk.machine.tree().contains("out/new.pdf"));

    // Thought better of before it was known, it is as if it had never been asked for.
    bench.store->setOnlyNewFiles(false, folderID);
    bench.store->setOnlyNewFiles(true, folderID);
    bench.store->runRules(folderID);
    bench.store->setOnlyNewFiles(false, folderID);
    bench.background.finish();
    EXPECT_FALSE(bench.store->wantsOnlyNewFiles(folderID));
    EXPECT_TRUE(bench.disk.machine.tree().contains("out/old.pdf"));
}

TEST(AppStore, needsAttentionForADayAfterAnErrorAndWhileAFolderIsAway) {
    AppStoreBench bench;
    const QUuid folderID = bench.addFolder("in");
    int changes = 0;
    QObject::connect(bench.store.get(), &AppStore::needsAttentionChanged, [&] { ++changes; });
    Rule failing = bench.mover(u"pdf"_s, "x");
    failing.actions.front().destination.reset();
    bench.addRule(failing, folderID);
    bench.disk.machine.write("in/a.pdf", "a");
    bench.store->runRules(folderID);
    bench.background.finish();
    EXPECT_TRUE(bench.store->needsAttention());
    EXPECT_EQ(bench.store->recentErrorCount(folderID), 1U);
    EXPECT_EQ(bench.store->recentErrorCount(QUuid::createUuid()), 0U);
    EXPECT_TRUE(bench.notifier.posted.empty());
    bench.pass(24h);
    EXPECT_TRUE(bench.store->needsAttention());
    bench.pass(1min);
    EXPECT_FALSE(bench.store->needsAttention());

    std::filesystem::remove_all(bench.disk.machine.at("in"));
    bench.store->runRules(folderID);
    bench.background.finish();
    EXPECT_EQ(bench.store->folderAccess().value(folderID), FolderAccess::missing);
    EXPECT_TRUE(bench.store->needsAttention());
    bench.store->removeFolder(folderID);
    EXPECT_FALSE(bench.store->needsAttention());
    EXPECT_EQ(changes, 4);
}

TEST(AppStore, endsTheRunsEarlyThatItIsToldOf) {
    AppStoreBench bench;
    const QUuid unwanted = bench.addFolder("in");
    const QUuid wanted = bench.addFolder("too");
    bench.addRule(bench.mover(u"pdf"_s, "out"), unwanted);
    bench.addRule(bench.mover(u"pdf"_s, "out"), wanted);
    bench.disk.machine.write("in/a.pdf", "a");
    bench.disk.machine.write("too/b.pdf", "b");
    const std::uint64_t number = bench.store->runRules(unwanted, RunCause::asked);
    bench.store->runRules(wanted, RunCause::asked);
    bench.store->endRunsEarly(number, number);
    bench.background.finish();
    EXPECT_TRUE(bench.disk.machine.tree().contains("in/a.pdf"));
    EXPECT_TRUE(bench.disk.machine.tree().contains("out/b.pdf"));
    bench.store->runRules(unwanted, RunCause::asked);
    bench.background.finish();
    EXPECT_TRUE(bench.disk.machine.tree().contains("out/a.pdf"));
}

TEST(AppStore, writesNothingAsAPreview) {
    AppStoreBench bench;
    const QUuid folderID = bench.addFolder("in");
    bench.addRule(bench.mover(u"pdf"_s, "out"), folderID);
    bench.disk.machine.write("in/a.pdf", "a");
    const PersistedState before = bench.saved();
    bench.store->isPreview = true;
    bench.store->setColor(1, folderID);
    EXPECT_EQ(bench.runs([&] { bench.store->setPaused(true); }), 0U);
    EXPECT_EQ(bench.runs([&] { bench.store->runRules(folderID); }), 0U);
    EXPECT_EQ(bench.saved(), before);
    EXPECT_TRUE(bench.disk.machine.tree().contains("in/a.pdf"));
    EXPECT_EQ(bench.store->preview(folderID).size(), 1U);
}

TEST(AppStore, triesAFailedSaveAgainEveryMinuteAndWithTheNextChange) {
    AppStoreBench bench;
    const QUuid folderID = bench.addFolder("in");
    bench.breakSaving();
    bench.store->setColor(1, folderID);
    ASSERT_TRUE(bench.store->lastSaveError());
    bench.pass(1min);
    EXPECT_TRUE(bench.store->lastSaveError());
    EXPECT_FALSE(bench.store->needsAttention());
    bench.mendSaving();
    bench.pass(1min);
    EXPECT_FALSE(bench.store->lastSaveError());
    EXPECT_EQ(bench.saved().folders.front().colorIndex, 1);

    bench.breakSaving();
    bench.store->setColor(2, folderID);
    bench.mendSaving();
    bench.store->setSymbol(u"tray"_s, folderID);
    EXPECT_FALSE(bench.store->lastSaveError());
    EXPECT_EQ(bench.saved().folders, bench.store->folders());
}

TEST(AppStore, filesWhatItCouldntFileForWantOfRoom) {
    AppStoreBench bench;
    const QUuid folderID = bench.addFolder("in");
    bench.addRule(bench.mover(u"pdf"_s, "out"), folderID);
    bench.disk.machine.write("in/a.pdf", "a");
    {
        const testing::FullDisk full;
        bench.runs([&] { bench.store->runRules(folderID); });
    }
    EXPECT_TRUE(bench.disk.machine.tree().contains("in/a.pdf"));
    EXPECT_EQ(bench.runs([&] { bench.pass(4s); }), 1U);
    EXPECT_TRUE(bench.disk.machine.tree().contains("out/a.pdf"));
}

TEST(AppStore, exportsRulesAndImportsThemUnderFreshIds) {
    AppStoreBench bench;
    const QUuid folderID = bench.addFolder("in");
    bench.addRule(bench.mover(u"pdf"_s, "out"), folderID);
    const std::string file = bench.disk.machine.at("rules.json");
    ASSERT_TRUE(bench.store->exportRules(folderID, file));
    EXPECT_EQ(bench.runs([&] { EXPECT_EQ(bench.store->importRules(file, folderID), 1U); }), 1U);
    const std::vector<Rule> rules = bench.store->folder(folderID)->rules;
    ASSERT_EQ(rules.size(), 2U);
    EXPECT_NE(rules[0].id, rules[1].id);

    bench.disk.machine.write("rules.json", "[{]");
    EXPECT_EQ(bench.runs([&] { EXPECT_FALSE(bench.store->importRules(file, folderID)); }), 0U);
    EXPECT_EQ(bench.store->folder(folderID)->rules.size(), 2U);

    const QUuid other = bench.addFolder("other");
    EXPECT_EQ(bench.runs([&] { bench.store->copyRule(rules[0].id, other); }), 1U);
    bench.store->copyRule(rules[0].id, other);
    EXPECT_EQ(bench.store->folder(other)->rules.back().name, u"Move pdf copy"_s);
    EXPECT_EQ(bench.store->lastRuleCopy()->folderName, u"other"_s);
}

} // namespace
} // namespace quillon
