#include "engine/DateFormats.h"

#include "support/SystemTimeZone.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace std::chrono;

// A Wednesday.
constexpr Timestamp may2024 = sys_days{2024y / 5 / 1} + 22h + 5min + 9s + 999'999'999ns;

TEST(DateFormats, ReadsTheLettersOfUnicodeInPlainEnglish) {
    const testing::SystemTimeZone zone("UTC");
    DateFormats dates;
    struct Case {
        QString pattern;
        std::optional<QString> expected;
    };
    const Case cases[] = {
        {u"yyyy-MM-dd"_qs, u"2024-05-01"_qs},
        {u"yy"_qs, u"24"_qs},
        {u"d MMM"_qs, u"1 May"_qs},
        {u"MMMM"_qs, u"May"_qs},
        {u"EEEE"_qs, u"Wednesday"_qs},
        {u"EEE"_qs, u"Wed"_qs},
        {u"HH.mm.ss"_qs, u"22.05.09"_qs},
        {u"hh a"_qs, u"10 PM"_qs},
        {u"QQQ"_qs, u"Q2"_qs},
        {u"ww"_qs, u"18"_qs},
        {u"D"_qs, u"122"_qs},
        {u"yyyy'year'''"_qs, u"2024year'"_qs},
        {u"SSS"_qs, u"999"_qs},
        {u""_qs, u""_qs},
        {u"{}-äß–"_qs, u"{}-äß–"_qs},
        {u"foo"_qs, std::nullopt},
        {u"yyyy n"_qs, std::nullopt},
    };
    for (int round = 0; round < 2; ++round) // the second from the cache
        for (const Case& c : cases)
            EXPECT_EQ(dates.format(c.pattern, may2024), c.expected) << c.pattern.toStdString();
}

TEST(DateFormats, UsesTheSystemsTimeZone) {
    const auto day = [](const char* name) {
        const testing::SystemTimeZone zone(name);
        DateFormats dates;
        return dates.format(u"yyyy-MM-dd HH"_qs, may2024);
    };
    EXPECT_EQ(day("Europe/Berlin"), u"2024-05-02 00"_qs);
    EXPECT_EQ(day("America/New_York"), u"2024-05-01 18"_qs);
}

TEST(DateFormats, RoundsMomentsBefore1970Down) {
    const testing::SystemTimeZone zone("UTC");
    DateFormats dates;
    const Timestamp moment = Timestamp(sys_days{1970y / 1 / 1}) - 1ns;
    EXPECT_EQ(dates.format(u"yyyy-MM-dd HHmmss"_qs, moment), u"1969-12-31 235959"_qs);
    EXPECT_EQ(dates.month(moment), u"1969-12"_qs);
}

} // namespace
} // namespace quillon
