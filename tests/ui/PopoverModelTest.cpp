#include "ui/history/PopoverModel.h"

#include "model/Uuid.h"
#include "support/AppStoreBench.h"
#include "support/PrintQt.h"
#include "support/SystemTimeZone.h"

#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

struct PopoverModelTest : ::testing::Test {
    SystemTimeZone zone{"UTC"};
    AppStoreBench bench;
    PopoverModel model{*bench.store, bench.clock, bench.timers};

    const PopoverFolder& row(std::size_t index) {
        return static_cast<KeyedRows<PopoverFolder>*>(model.folders())->rows().at(index);
    }
};

TEST_F(PopoverModelTest, TellsWhenEachFolderIsTidiedNext) {
    const QUuid folder = bench.addFolder("in");
    model.setShown(true);
    EXPECT_EQ(row(0).statusText, u"As files land"_s);
    const std::pair<TidyTiming, QString> timings[] = {
        {TidyTiming::manual, u"Only when I ask"_s},
        {TidyTiming::hourly, u"Next at 01:00"_s}, // the clock begins at midnight
        {TidyTiming::daily, u"Next tomorrow at 00:00"_s},
    };
    for (const auto& [timing, text] : timings) {
        bench.store->setTiming(timing, folder);
        bench.start(); // which stamps the schedules
        PopoverModel fresh(*bench.store, bench.clock, bench.timers);
        fresh.setShown(true);
        const auto& rows = static_cast<KeyedRows<PopoverFolder>*>(fresh.folders())->rows();
        EXPECT_EQ(rows.at(0).statusText, text);
        bench.store->setPaused(true);
        EXPECT_EQ(rows.at(0).statusText, label(timing));
        EXPECT_EQ(fresh.statusText(), u"Paused — nothing runs automatically"_s);
        bench.store->setPaused(false);
    }
}

TEST_F(PopoverModelTest, SaysWhichFoldersNeedALook) {
    model.setShown(true);
    EXPECT_EQ(model.statusText(), u"Nothing to tidy yet"_s);
    const QUuid fine = bench.addFolder("fine");
    EXPECT_EQ(model.statusText(), u"Everything is in order"_s);
    bench.addFolder("gone");
    std::filesystem::remove(bench.disk.machine.at("gone"));
    bench.store->refreshAccess();
    bench.background.finish();
    EXPECT_EQ(model.statusText(), u"1 folder needs a look"_s);
    EXPECT_EQ(row(1).statusText, u"Folder not found"_s);
    EXPECT_FALSE(row(1).canRun);

    // A file in the place of the folder that files are to be moved to.
    bench.disk.machine.write("in the way", "x");
    bench.disk.machine.write("fine/a.txt", "a");
    bench.pass(10s);
    bench.addRule(bench.mover(u"txt"_s, "in the way"), fine);
    EXPECT_EQ(row(0).statusText, u"1 error"_s);
    EXPECT_EQ(model.statusText(), u"2 folders need a look"_s);
    EXPECT_TRUE(model.isTrouble());
    bench.store->setPaused(true);
    EXPECT_EQ(model.statusText(), u"Paused · 2 folders need a look"_s);
}

TEST_F(PopoverModelTest, TellsOfARunOnlyWhileItTakesLong) {
    const QUuid folder = bench.addFolder("in");
    bench.store->setTiming(TidyTiming::manual, folder);
    bench.addRule(bench.mover(u"txt"_s, "texts"), folder);
    bench.disk.machine.write("in/a.txt", "a");
    bench.touch("in/a.txt", bench.clock.now() - 1h);
    model.setShown(true);
    model.run(uuidText(folder));
    EXPECT_FALSE(row(0).isRunning);
    bench.timers.advance(300ms);
    EXPECT_TRUE(row(0).isRunning);
    EXPECT_EQ(row(0).statusText, u"Tidying…"_s);
    bench.background.finish();
    EXPECT_FALSE(row(0).isRunning);
    EXPECT_EQ(row(0).statusText, u"Filed 1 file"_s);
    EXPECT_EQ(model.entries()->rowCount(), 1);
    bench.timers.advance(6s);
    EXPECT_EQ(row(0).statusText, u"Only when I ask"_s);

    model.run(uuidText(folder));
    bench.background.finish();
    EXPECT_EQ(row(0).statusText, u"Already tidy"_s);

    bench.disk.machine.write("in/b.txt", "b");
    bench.touch("in/b.txt", bench.clock.now());
    model.run(uuidText(folder));
    bench.background.finish();
    EXPECT_EQ(row(0).statusText, u"Files are settling"_s);
}

} // namespace
} // namespace quillon::testing
