#include "store/WatchCoordinator.h"

#include "support/FakeWatching.h"
#include "support/ManualTimers.h"
#include "support/PrintQt.h"
#include "support/StepwiseBackground.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct WatchCoordinatorTest : ::testing::Test {
    FakeWatching watching;
    ManualTimers timers;
    StepwiseBackground background;
    std::vector<QUuid> runs;
    int warningChanges = 0;
    std::unique_ptr<WatchCoordinator> coordinator =
        std::make_unique<WatchCoordinator>(watching, timers, background);
    WatchedFolder inbox{.path = QStringLiteral("/inbox")};
    WatchedFolder attic{.path = QStringLiteral("/attic")};

    void SetUp() override {
        coordinator->onFolderChanged = [this](const QUuid& id) { runs.push_back(id); };
        coordinator->onWarningsChanged = [this] { ++warningChanges; };
        coordinator->sync({inbox, attic});
    }
    void pass(std::chrono::milliseconds time) {
        background.finish();
        timers.advance(time);
    }
};

TEST_F(WatchCoordinatorTest, aBurstIsOneCallOnceTheFolderIsQuiet) {
    for (int batch = 0; batch < 10; ++batch) {
        watching.change("/inbox");
        pass(600ms);
    }
    EXPECT_THAT(runs, IsEmpty());
    watching.change("/attic");
    pass(199ms);
    EXPECT_THAT(runs, IsEmpty());
    pass(1ms);
    EXPECT_THAT(runs, ElementsAre(inbox.id));
    pass(1min);
    EXPECT_THAT(runs, ElementsAre(inbox.id, attic.id));
}

TEST_F(WatchCoordinatorTest, watchersFollowTheLiveFolders) {
    inbox.isRecursive = true;
    coordinator->sync({attic, inbox});
    EXPECT_EQ(watching.started, 2) << "a folder that stays keeps its watcher";

    attic.path = QStringLiteral("/cellar");
    coordinator->sync({inbox, attic});
    EXPECT_THAT(watching.paths(), ElementsAre("/inbox", "/cellar"));
    EXPECT_EQ(watching.started, 3);

    inbox.setTiming(TidyTiming::hourly);
    coordinator->sync({inbox, attic});
    EXPECT_THAT(watching.paths(), ElementsAre("/cellar"));
    coordinator->sync({});
    EXPECT_THAT(watching.paths(), IsEmpty());
}

TEST_F(WatchCoordinatorTest, aFolderThatIsNoLongerLiveMakesNoCalls) {
    watching.change("/inbox"); // on its way to our thread
    watching.change("/attic");
    background.finish(); // and waiting for quiet
    watching.change("/inbox");
    inbox.setTiming(TidyTiming::manual);
    attic.setTiming(TidyTiming::daily);
    coordinator->sync({inbox, attic});
    pass(1min);
    EXPECT_THAT(runs, IsEmpty());

    inbox.setTiming(TidyTiming::live);
    coordinator->sync({inbox});
    pass(1min);
    EXPECT_THAT(runs, IsEmpty()) << "what happened in between is not made up for";
}

TEST_F(WatchCoordinatorTest, aCoordinatorThatIsGoneEndsTheCall) {
    watching.change("/inbox");
    watching.warn("/inbox", QStringLiteral("Slow."));
    coordinator.reset();
    pass(1min);
    EXPECT_THAT(runs, IsEmpty());
    EXPECT_EQ(warningChanges, 0);
}

TEST_F(WatchCoordinatorTest, tellsWhenWarningsComeAndGo) {
    watching.warn("/attic", QStringLiteral("Slow."));
    background.finish();
    EXPECT_EQ(warningChanges, 1);
    EXPECT_THAT(coordinator->warnings(), ElementsAre(QStringLiteral("Slow.")));
    coordinator->sync({inbox});
    EXPECT_EQ(warningChanges, 2);
    EXPECT_THAT(coordinator->warnings(), IsEmpty());
}

} // namespace
} // namespace quillon::testing
