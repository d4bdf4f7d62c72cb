#include "ui/Toasts.h"

#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(ToastsTest, DoesItsThingOnceAndThatOfTheNewestAlone) {
    Toasts toasts;
    QStringList done;
    toasts.show(u"“Old” deleted"_s, u"Undo"_s, [&] { done.append(u"old"_s); });
    toasts.show(u"“New” deleted"_s, u"Undo"_s, [&] { done.append(u"new"_s); });
    toasts.act();
    toasts.act();
    EXPECT_EQ(done, QStringList{u"new"_s});
}

} // namespace
} // namespace quillon::testing
