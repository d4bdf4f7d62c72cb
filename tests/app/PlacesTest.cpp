#include "app/DockPolicy.h"
#include "app/PopoverPlace.h"
#include "app/WindowFrame.h"

#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using Place = TrayItem::Place;

TEST(DockPolicy, leavesAWayInWhateverIsChosen) {
    struct Case {
        DockPolicy policy;
        bool atLaunch;
        bool skips;
        bool hides;
    };
    const Case cases[] = {
        {{.showsDockIcon = true, .hasOnboarded = true, .tray = Place::shown}, true, false, true},
        {{.showsDockIcon = false, .hasOnboarded = true, .tray = Place::shown}, false, true, true},
        {{.showsDockIcon = false, .hasOnboarded = false, .tray = Place::shown}, true, false, true},
        {{.showsDockIcon = false, .hasOnboarded = true, .tray = Place::unknown},
         false,
         false,
         true},
        {{.showsDockIcon = false, .hasOnboarded = true, .tray = Place::nowhere},
         true,
         false,
         false},
        {{.showsDockIcon = true, .hasOnboarded = true, .tray = Place::nowhere}, true, false, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(&c - cases);
        EXPECT_EQ(c.policy.showsWindowAtLaunch(), c.atLaunch);
        EXPECT_EQ(c.policy.skipsTaskbar(), c.skips);
        EXPECT_EQ(c.policy.closingHides(), c.hides);
    }
}

TEST(WindowFrame, isReadAsItWasWritten) {
    const WindowFrame frame{.rect = {-20, 30, 1040, 700}, .isMaximized = true};
    EXPECT_EQ(readFrame(frameText(frame)), frame);
    for (const char* text : {"", "1 2 3", "a b c d", "0 0 0 700"})
        EXPECT_FALSE(readFrame(QString::fromLatin1(text))) << text;
}

TEST(WindowFrame, thatIsOffTheScreensIsBroughtBack) {
    const QList<QRect> screens{{0, 30, 1920, 1050}, {1920, 0, 1280, 1024}};
    const QRect fine(1800, 100, 1040, 700);
    struct Case {
        QRect saved;
        QRect expected;
    };
    const Case cases[] = {
        {fine, fine},
        {{5000, 100, 1040, 700}, {880, 100, 1040, 700}}, // on a screen that is gone
        {{100, 0, 1040, 700}, {100, 30, 1040, 700}},     // its top under a panel
        {{100, 1060, 1040, 700}, {100, 380, 1040, 700}}, // only its top edge to be seen
        {{2000, 0, 3000, 2000}, {1920, 0, 1280, 1024}},  // larger than the screen
    };
    for (const Case& c : cases)
        EXPECT_EQ(reachable(c.saved, screens), c.expected) << c.saved.x() << ' ' << c.saved.y();
    EXPECT_EQ(reachable(fine, {}), fine);
}

TEST(PopoverPlace, staysOnTheScreenBesideItsPoint) {
    const QRect screen(0, 0, 1280, 800);
    const QSize size(340, 460);
    struct Case {
        QPoint point;
        QRect expected;
    };
    const Case cases[] = {
        {{600, 10}, {430, 22, 340, 460}},   // a panel at the top
        {{600, 790}, {430, 318, 340, 460}}, // at the bottom
        {{1275, 10}, {932, 22, 340, 460}},  // in a corner
        {{2, 790}, {8, 318, 340, 460}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(placeBeside(c.point, size, screen), c.expected)
            << c.point.x() << ' ' << c.point.y();
    EXPECT_EQ(placeBeside({50, 50}, size, {0, 0, 300, 200}).topLeft(), QPoint(8, 8));
}

} // namespace
} // namespace quillon::testing
