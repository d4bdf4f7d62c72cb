#include "model/Uuid.h"
#include "store/EventLoopTimers.h"
#include "store/JournalFormat.h"
#include "store/ThreadBackground.h"
#include "support/AppStoreBench.h"
#include "support/PrintQt.h"

#include <QCoreApplication>
#include <QEventLoop>

namespace quillon {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::AppStoreBench;
using namespace std::chrono_literals;

struct LiveFolder : AppStoreBench {
    QUuid folderID = addFolder("in");

    LiveFolder() { addRule(mover(u"pdf"_s, "out"), folderID); }
    void run(RunCause cause = RunCause::automatic) {
        store->runRules(folderID, cause);
        background.finish();
    }
    [[nodiscard]] bool has(const std::string& name) const {
        return disk.machine.tree().contains(name);
    }
};

TEST(TidyRuns, leaveAFileAloneUntilItHasBeenStill) {
    LiveFolder live;
    live.disk.machine.write("in/a.pdf", "a");
    live.touch("in/a.pdf", live.clock.now());
    live.run();
    EXPECT_TRUE(live.store->isSettling(live.folderID));
    const std::size_t timers = live.timers.waiting();

    // A second change replaces the second look, and looks that find it changed go on.
    live.pass(1s);
    live.run();
    EXPECT_EQ(live.timers.waiting(), timers);
    EXPECT_EQ(live.runs([&] { live.pass(3s); }), 0U);
    live.touch("in/a.pdf", live.clock.now());
    EXPECT_EQ(live.runs([&] { live.pass(1s); }), 1U);
    EXPECT_TRUE(live.has("in/a.pdf"));
    EXPECT_EQ(live.runs([&] { live.pass(4s); }), 1U);
    EXPECT_TRUE(live.has("out/a.pdf"));
    EXPECT_FALSE(live.store->isSettling(live.folderID));

    live.disk.machine.write("in/b.pdf.part", "b");
    live.run();
    EXPECT_TRUE(live.store->isSettling(live.folderID));
    live.store->setPaused(true);
    EXPECT_FALSE(live.store->isSettling(live.folderID));
    live.store->setPaused(false);
    live.touch("in/b.pdf.part", live.clock.now() - 61min);
    live.run();
    EXPECT_FALSE(live.store->isSettling(live.folderID)) << "somebody gave it up";
}

TEST(TidyRuns, ofOneFolderTakeTurnsAndThoseThatWaitAreOne) {
    LiveFolder live;
    const QUuid other = live.addFolder("other");
    const std::uint64_t first = live.store->runRules(live.folderID);
    const std::uint64_t second = live.store->runRules(live.folderID);
    EXPECT_EQ(live.store->runRules(live.folderID, RunCause::asked), second);
    EXPECT_NE(live.store->runRules(other), 0U);
    EXPECT_EQ(live.background.waiting(), 2U);

    std::vector<std::uint64_t> told;
    live.store->afterRuns(second, [&] { told.push_back(second); });
    live.store->afterRuns(first, [&] { told.push_back(first); });
    live.reports.clear();
    live.background.step();
    EXPECT_EQ(told, std::vector{first});
    live.background.finish();
    EXPECT_EQ(told, (std::vector{first, second}));
    ASSERT_EQ(live.reports.size(), 3U);
    EXPECT_EQ(live.reports.back().cause, RunCause::asked);
    EXPECT_EQ(live.store->runRules(QUuid::createUuid()), 0U);
}

TEST(TidyRuns, tellOfWhatTheyFiled) {
    struct Case {
        int files;
        QString body;
    };
    for (const Case& one : {Case{1, u"Filed 1 file."_s}, Case{3, u"Filed 3 files."_s}}) {
        LiveFolder live;
        for (int i = 0; i < one.files; ++i)
            live.disk.machine.write("in/" + std::to_string(i) + ".pdf", "x");
        live.settings.values.insert(u"notificationsEnabled"_s, u"true"_s);
        live.run();
        live.run();
        ASSERT_EQ(live.notifier.posted.size(), 1U);
        EXPECT_EQ(live.notifier.posted.front().title, u"Quillon tidied in"_s);
        EXPECT_EQ(live.notifier.posted.front().body, one.body);
        live.notifier.posted.front().undo();
        live.background.finish();
        EXPECT_TRUE(live.has("in/0.pdf"));
        EXPECT_TRUE(live.store->recentLogs().empty());
        EXPECT_TRUE(live.saved().logs.empty());

        // The rule has had its turn: only when the user asks does it act on them again.
        live.run();
        EXPECT_TRUE(live.has("in/0.pdf"));
        live.run(RunCause::asked);
        EXPECT_TRUE(live.has("out/0.pdf"));
        live.settings.values.insert(u"notificationsEnabled"_s, u"false"_s);
        live.disk.machine.write("in/late.pdf", "x");
        live.run();
        EXPECT_EQ(live.notifier.posted.size(), 2U);
    }
}

TEST(TidyRuns, tryWhatFailedAgainEveryHourAndLogItOnceADay) {
    LiveFolder live;
    live.disk.machine.write("in/a.pdf", "a");
    live.disk.machine.write("out", "no folder");
    const auto tries = [&] {
        const auto before = live.disk.machine.tree();
        live.reports.clear();
        live.run();
        EXPECT_EQ(live.disk.machine.tree(), before);
        return live.reports.front().run.failed.size();
    };
    EXPECT_EQ(tries(), 1U);
    EXPECT_EQ(tries(), 0U);
    live.pass(60min);
    EXPECT_EQ(tries(), 1U);
    EXPECT_EQ(live.store->recentLogs().size(), 1U);
    live.pass(24h);
    EXPECT_EQ(tries(), 1U);
    ASSERT_EQ(live.store->recentLogs().size(), 1U);
    EXPECT_EQ(live.store->recentLogs().front().date, live.clock.now());
    live.run(RunCause::asked);
    EXPECT_EQ(live.store->recentLogs().size(), 2U) << "whoever asks is told";

    std::filesystem::remove(live.disk.machine.at("out"));
    live.pass(60min);
    live.run();
    EXPECT_TRUE(live.has("out/a.pdf"));
}

TEST(TidyRuns, keepTheNewestEntriesInTheLog) {
    LiveFolder live;
    for (int i = 0; i < 500; ++i)
        live.disk.machine.write("in/" + std::to_string(i) + ".pdf", "x");
    live.run();
    const std::vector<LogEntry> old = live.store->recentLogs();
    ASSERT_EQ(old.size(), 500U);
    for (const char* name : {"in/a.pdf", "in/b.pdf", "in/c.pdf"})
        live.disk.machine.write(name, "x");
    live.run();
    const std::vector<LogEntry>& logs = live.store->recentLogs();
    ASSERT_EQ(logs.size(), 500U);
    EXPECT_EQ(logs[0].fileName, u"a.pdf"_s);
    EXPECT_EQ(logs[2].fileName, u"c.pdf"_s);
    EXPECT_EQ(logs[3], old.front());
    EXPECT_EQ(logs.back(), old[496]);
}

TEST(TidyRuns, writeNothingWhenNothingHappens) {
    LiveFolder live;
    live.disk.machine.write("in/a.txt", "a");
    live.run();
    std::filesystem::remove(live.disk.places.state());
    live.run();
    EXPECT_FALSE(std::filesystem::exists(live.disk.places.state()));
    EXPECT_EQ(live.disk.machine.contents(live.disk.places.journal()), "");
}

TEST(TidyRuns, leaveNothingInTheJournalWhereTheirRulesFindNothingToDo) {
    LiveFolder live;
    Rule rule = live.mover(u"txt"_s, "out");
    rule.actions.front().type = ActionType::rename;
    live.disk.machine.write("in/a.txt", "a");
    live.addRule(rule, live.folderID);
    live.run();
    EXPECT_EQ(live.disk.machine.contents(live.disk.places.journal()), "");
}

TEST(TidyRuns, leaveAloneWhatAKilledRunHadDone) {
    LiveFolder live;
    Rule rule = live.mover(u"txt"_s, "out");
    rule.actions.front().type = ActionType::rename;
    rule.actions.front().renamePattern = u"x-{name}"_s;
    live.addRule(rule, live.folderID);
    live.store.reset();

    live.disk.machine.write("in/x-a.txt", "a");
    Intent intent = live.disk.intentFor("in/x-a.txt", {});
    intent.entry.originalPath = live.path("in/a.txt");
    intent.entry.ruleName = rule.name;
    intent.entry.folderID = live.folderID;
    const QUuid killed = QUuid::createUuid();
    JsonStream json;
    writeIntent(json, killed, intent, false);
    intent.entry.undoable = true;
    writeOutcome(json, killed, intent.entry);
    live.disk.machine.write(live.disk.places.journal(), json.take().toStdString());
    live.start();
    live.run();
    EXPECT_TRUE(live.has("in/x-a.txt"));
    live.run(RunCause::asked);
    EXPECT_TRUE(live.has("in/x-x-a.txt")) << "whoever asks gets it";
}

TEST(TidyRuns, ofAFolderThatIsGoneOrRemovedFindNothing) {
    LiveFolder live;
    live.disk.machine.write("in/a.pdf", "a");
    live.store->runRules(live.folderID);
    live.store->runRules(live.folderID);
    live.store->removeFolder(live.folderID);
    live.reports.clear();
    live.background.finish();
    EXPECT_EQ(live.reports.size(), 1U);
    EXPECT_EQ(live.store->recentLogs().size(), 1U);

    const QUuid away = live.addFolder("away");
    std::filesystem::remove(live.disk.machine.at("away"));
    live.store->runRules(away);
    live.background.finish();
    ASSERT_TRUE(live.reports.back().unlisted);
    EXPECT_EQ(live.reports.back().unlisted->kind, ErrorKind::notFound);
}

TEST(TidyRuns, countAFileThatWaitsForTheAssistantAsNew) {
    LiveFolder live;
    Rule asking = live.mover(u"a receipt"_s, "receipts");
    asking.conditions.front().attribute = ConditionAttribute::dobbinSays;
    live.store->setOnlyNewFiles(true, live.folderID);
    live.background.finish();
    live.addRule(asking, live.folderID);
    live.disk.machine.write("in/scan.txt", "a");
    live.judge.waiting = true;
    live.resolver.pending = true;
    live.run();
    EXPECT_TRUE(live.store->processedFiles().value(uuidText(live.folderID)).isEmpty());
    live.run();
    ASSERT_EQ(live.resolver.asked.size(), 1U);

    live.judge.waiting = live.resolver.pending = false;
    live.judge.verdicts[u"a receipt"_s] = Verdict::yes;
    EXPECT_TRUE(live.store->isUnsettled(live.folderID));
    live.resolver.asked.front()({.settled = true});
    live.background.finish();
    EXPECT_TRUE(live.has("receipts/scan.txt"));
    EXPECT_FALSE(live.store->isUnsettled(live.folderID));

    live.start(AppStore::Life::command);
    live.resolver.pending = true;
    live.store->runRules(live.folderID);
    live.background.finish();
    EXPECT_EQ(live.resolver.asked.size(), 1U) << "a command would not hear the answer";
    live.store->askQuestions();
    EXPECT_EQ(live.resolver.asked.size(), 2U);
}

TEST(TidyRuns, undoOnlyTheBatchThatIsMeant) {
    LiveFolder live;
    live.disk.machine.write("in/mine.pdf", "x");
    live.run();
    const QUuid batchID = QUuid::createUuid();
    live.disk.machine.write("in/a.txt", "a");
    live.disk.machine.write("in/b.txt", "b");
    const WatchedFolder folder = *live.store->folder(live.folderID);
    const RuleEngine engine(live.platform, live.judge);
    AppStore::CleanupReport report;
    live.store->runCleanup({.folder = folder,
                            .rules = {live.mover(u"txt"_s, "texts")},
                            .files = *engine.readyFiles(folder),
                            .batchID = batchID},
                           [&](AppStore::CleanupReport done) { report = std::move(done); });
    live.background.finish();
    ASSERT_EQ(report.run.entries.size(), 2U);
    EXPECT_EQ(live.saved().logs.size(), 3U);

    live.disk.machine.write("in/a.txt", "another");
    std::vector<std::size_t> progress;
    AppStore::UndoReport undone;
    live.store->undoCleanup(
        batchID, [&](AppStore::UndoReport done) { undone = std::move(done); },
        [&](std::size_t done, std::size_t) { progress.push_back(done); });
    live.background.finish();
    EXPECT_EQ(undone.outcomes.size(), 2U);
    EXPECT_FALSE(progress.empty());
    EXPECT_EQ(live.disk.machine.contents("in/a 2.txt"), "a");
    EXPECT_TRUE(live.has("out/mine.pdf"));
    EXPECT_EQ(live.saved().logs.size(), 1U);
    EXPECT_EQ(live.disk.machine.contents(live.disk.places.journal()), "");
}

TEST(TidyRuns, endWithTheStore) {
    LiveFolder live;
    live.disk.machine.write("in/a.pdf", "a");
    live.store->runRules(live.folderID);
    const std::uint64_t waiting = live.store->runRules(live.folderID);
    bool isOver = false;
    bool isTold = false;
    live.store->afterRuns(waiting, [&] { isTold = true; });
    live.store->finish([&] { isOver = true; });
    EXPECT_FALSE(isOver);
    EXPECT_EQ(live.store->runRules(live.folderID), 0U);
    live.background.finish();
    EXPECT_TRUE(isOver);
    EXPECT_TRUE(isTold);
    EXPECT_EQ(live.saved().logs.size(), 1U);
    EXPECT_EQ(live.timers.waiting(), 0U);

    live.start();
    live.disk.machine.write("in/b.pdf", "b");
    live.store->hurry();
    live.run();
    EXPECT_TRUE(live.reports.back().run.interrupted);
    EXPECT_TRUE(live.has("in/b.pdf"));

    // A result for a store that has gone is dropped, and the journal tells of it.
    live.start();
    live.store->runRules(live.folderID);
    live.store.reset();
    live.background.finish();
    EXPECT_TRUE(live.has("out/b.pdf"));
    live.start();
    EXPECT_EQ(live.store->recentLogs().size(), 2U);
}

TEST(TidyRuns, goOnOverARealEventLoopAndRealThreads) {
    int argc = 0;
    const QCoreApplication application(argc, nullptr);
    LiveFolder live;
    live.store.reset();
    EventLoopTimers timers;
    ThreadBackground threads;
    AppStore store(live.disk.open(), live.surroundings(threads, timers), AppStore::Life::instance);
    const QUuid other = *store.addFolder(QString::fromStdString(live.disk.machine.makeFolder("o")));
    store.addRules({live.mover(u"txt"_s, "out")}, other, RuleSource::manual);
    for (int i = 0; i < 50; ++i) {
        live.disk.machine.write("in/" + std::to_string(i) + ".pdf", "x");
        live.disk.machine.write("o/" + std::to_string(i) + ".txt", "x");
    }
    QEventLoop loop;
    for (int i = 0; i < 20; ++i)
        store.runAllRules();
    store.afterRuns(store.lastRunNumber(), [&] { loop.quit(); });
    loop.exec();
    EXPECT_EQ(store.recentLogs().size(), 100U);

    int ticks = 0;
    std::unique_ptr<Timer> ticking = timers.every(1ms, [&] {
        if (++ticks == 3)
            ticking.reset();
    });
    const auto end = timers.after(20ms, [&] { store.finish([&] { loop.quit(); }); });
    loop.exec();
    EXPECT_EQ(ticks, 3);
    EXPECT_EQ(live.saved().logs.size(), 100U);
}

} // namespace
} // namespace quillon
