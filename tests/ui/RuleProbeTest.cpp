#include "ui/editor/RuleProbe.h"

#include "store/EventLoopTimers.h"
#include "store/ThreadBackground.h"
#include "support/AppStoreBench.h"
#include "support/EventLoopApplication.h"
#include "support/FakePlatform.h"
#include "support/PrintQt.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <ctime>
#include <thread>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

/// A folder with as many files as anybody has.
struct FullFolder final : NoFileSystem {
    std::size_t count;

    explicit FullFolder(std::size_t files) : count(files) {}
    Expected<Listing> list(const std::string&, const ListOptions&) const override {
        Listing listing;
        for (std::size_t i = 0; i < count; ++i)
            listing.files.push_back(
                {.path = "a file with number " + std::to_string(i) + ".pdf", .status = {}});
        return listing;
    }
};

Rule named(const QString& part) {
    Rule rule{.id = QUuid(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11)};
    rule.conditions.front() = {.id = rule.id, .value = part};
    return rule;
}

struct ProbeBench {
    FullFolder files;
    FakePlatform fakes;
    Platform platform;
    FakeJudge judge;
    ManualTimers timers;
    StepwiseBackground background;
    RuleProbe probe;

    explicit ProbeBench(std::size_t count)
        : files(count)
        , platform{.fileSystem = files,
                   .trash = fakes.platform.trash,
                   .tags = fakes.platform.tags,
                   .provenance = fakes.platform.provenance,
                   .cloudFiles = fakes.platform.cloudFiles,
                   .contentTypes = fakes.platform.contentTypes,
                   .processes = fakes.platform.processes,
                   .archives = fakes.platform.archives,
                   .clock = fakes.platform.clock,
                   .folders = fakes.platform.folders}
        , probe(around(background, timers)) {}

    RuleProbe::Surroundings around(Background& threads, Timers& someTimers) {
        return {platform, threads, someTimers,
                [this] { return std::make_unique<FakeJudge>(judge); }};
    }
};

TEST(RuleProbeTest, SaysWhatARuleCatchesAndNamesTheFirstTen) {
    ProbeBench bench(120);
    bench.probe.open({.path = u"/home/me/Downloads"_s});
    bench.probe.setRule(named(u"number 11"_s)); // 11 and 110 to 119
    EXPECT_EQ(bench.probe.text(), u"Counting…"_s);
    bench.background.finish();
    EXPECT_EQ(bench.probe.text(), u"Catches 11 of 120 files now"_s);
    EXPECT_EQ(bench.probe.names().size(), 11);
    EXPECT_EQ(bench.probe.names().back(), u"and 1 more"_s);
    EXPECT_EQ(bench.probe.found()->example->name, "a file with number 11.pdf");
    EXPECT_EQ(bench.probe.spoken(), QString());
    bench.timers.advance(1s);
    EXPECT_EQ(bench.probe.spoken(), bench.probe.text());

    Rule asking = named(u"a receipt"_s);
    asking.conditions.front().attribute = ConditionAttribute::dobbinSays;
    bench.judge.waiting = true;
    bench.probe.setRule(asking);
    bench.timers.advance(250ms);
    bench.background.finish();
    EXPECT_EQ(bench.probe.text(), u"Catches 0 of 120 files now, 120 waiting for Dobbin"_s);
}

TEST(RuleProbeTest, LooksOnceAPauseInTypingAndDropsWhatIsOlder) {
    ProbeBench bench(20);
    bench.probe.open({.path = u"/home/me/Downloads"_s});
    bench.probe.setRule(named(u"x"_s));
    bench.background.finish();
    for (const QString& typed : {u"n"_s, u"nu"_s, u"number 1"_s}) {
        bench.probe.setRule(named(typed));
        bench.timers.advance(249ms);
        EXPECT_EQ(bench.background.waiting(), 0U) << typed.toStdString();
    }
    bench.timers.advance(1ms);
    EXPECT_EQ(bench.background.waiting(), 1U);

    // Changed again while that is being looked at: its result isn't shown any more.
    bench.probe.setRule(named(u"number"_s));
    bench.background.step();
    EXPECT_EQ(bench.probe.text(), u"Catches 0 of 20 files now"_s);
    bench.timers.advance(250ms);
    bench.timers.advance(300ms);
    EXPECT_TRUE(bench.probe.isCounting());
    bench.background.finish();
    EXPECT_EQ(bench.probe.text(), u"Catches 20 of 20 files now"_s);

    bench.probe.setRule(named(u"1"_s));
    bench.timers.advance(250ms);
    bench.probe.close();
    bench.background.finish();
    EXPECT_FALSE(bench.probe.found());
}

TEST(RuleProbeTest, GivesUpBetweenFiles) {
    ProbeBench bench(100'000);
    const auto ready = RuleEngine(bench.platform, bench.judge).readyFiles({.path = u"/x"_s});
    int asked = 0;
    const auto found =
        ruleCatch(named(u"1"_s), *ready, bench.platform, bench.judge, [&] { return ++asked < 3; });
    EXPECT_FALSE(found);
    EXPECT_EQ(asked, 3);
}

TEST(RuleProbeTest, AFolderThatCannotBeReadIsSaid) {
    AppStoreBench bench;
    RuleProbe probe({bench.platform, bench.background, bench.timers,
                     [&] { return std::make_unique<FakeJudge>(); }});
    probe.open({.path = bench.path("nowhere")});
    probe.setRule(named(u"x"_s));
    bench.background.finish();
    EXPECT_TRUE(probe.isError());
    EXPECT_TRUE(probe.text().startsWith(u"nowhere can’t be read: "_s))
        << probe.text().toStdString();
}

double threadMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return 1e3 * double(time.tv_sec) + 1e-6 * double(time.tv_nsec);
}

/// By the work of the thread itself, so that a busy machine makes no difference.
TEST(RuleProbeTest, TypingOverAHundredThousandFilesNeverHoldsUpTheEventLoop) {
    const EventLoopApplication application;
    ProbeBench bench(100'000);
    ThreadBackground threads;
    EventLoopTimers timers;
    RuleProbe probe(bench.around(threads, timers));
    int counts = 0;
    QObject::connect(&probe, &RuleProbe::changed, [&] { counts += !probe.isCounting(); });
    double longest = 0;
    const auto turn = [&](const auto& work) {
        const double before = threadMilliseconds();
        work();
        QCoreApplication::processEvents();
        longest = std::max(longest, threadMilliseconds() - before);
    };
    turn([&] { probe.open({.path = u"/home/me/Downloads"_s}); });
    QElapsedTimer time;
    time.start();
    QString typed;
    while (time.elapsed() < 20'000 && (typed.size() < 12 || probe.isCounting())) {
        if (typed.size() < 12)
            turn([&] { probe.setRule(named(typed += u'1')); });
        for (int i = 0; i < 30; ++i)
            turn([] { std::this_thread::sleep_for(1ms); });
    }
    while (time.elapsed() < 20'000 && counts == 0)
        turn([] { std::this_thread::sleep_for(1ms); });
    turn([&] { probe.close(); });
    EXPECT_GT(counts, 0);
    RecordProperty("longestMilliseconds", std::to_string(longest));
    std::printf("longest turn of the event loop: %.2f ms\n", longest);
    EXPECT_LT(longest, 16);
}

} // namespace
} // namespace quillon::testing
