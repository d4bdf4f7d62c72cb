#include "cli/TimeSpan.h"

#include "support/SystemTimeZone.h"

#include <QDateTime>
#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

TEST(TimeSpan, readsDaysAndTimesWhereThisMachineIs) {
    const SystemTimeZone zone("Europe/Berlin");
    const Timestamp now{
        std::chrono::seconds(QDateTime(QDate(2026, 3, 29), QTime(7, 30)).toSecsSinceEpoch())};
    const struct {
        const char* text;
        QDateTime moment; ///< invalid: refused
    } cases[] = {
        {"today", QDate(2026, 3, 29).startOfDay()},
        {"Yesterday 18:00", {QDate(2026, 3, 28), QTime(18, 0)}},
        {"  6:05 ", {QDate(2026, 3, 29), QTime(6, 5)}},
        {"2026-03-29 03:30", {QDate(2026, 3, 29), QTime(3, 30)}},
        {"2024-02-29", QDate(2024, 2, 29).startOfDay()},
        {"2026-02-29", {}},
        {"18:00 yesterday", {}},
        {"yesterday at 18:00", {}},
        {"24:00", {}},
        {" ", {}},
    };
    for (const auto& [text, moment] : cases) {
        const auto span = timeSpan(text, "", now);
        ASSERT_EQ(span.has_value(), moment.isValid()) << text;
        if (span) {
            EXPECT_EQ(*span->since, Timestamp(std::chrono::seconds(moment.toSecsSinceEpoch())));
            EXPECT_TRUE(span->contains(*span->since));
            EXPECT_FALSE(timeSpan("", text, now)->contains(*span->since)) << "before leaves it out";
        }
    }
    EXPECT_TRUE(timeSpan("0001-01-01", "9999-12-31", now)->contains(now));
}

} // namespace
} // namespace quillon::testing
