#include "ui/TimeTexts.h"

#include "support/SystemTimeZone.h"
#include "ui/CountTexts.h"
#include "ui/FileKindWord.h"
#include "ui/ShownName.h"

#include <QDateTime>
#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;

Timestamp at(const char* local) {
    const QDateTime moment = QDateTime::fromString(QString::fromLatin1(local), Qt::ISODate);
    EXPECT_TRUE(moment.isValid()) << local;
    return Timestamp(std::chrono::milliseconds(moment.toMSecsSinceEpoch()));
}

struct TimeTextsTest : ::testing::Test {
    SystemTimeZone zone{"Europe/Berlin"}; // so that the day in UTC is another one at midnight
};

TEST_F(TimeTextsTest, TellsMomentsByTheDayOfTheirTimeZone) {
    const Timestamp now = at("2026-11-20T00:40:00");
    const QLocale british(QLocale::English, QLocale::UnitedKingdom);
    struct Case {
        const char* moment;
        QString entry;
        QString heading;
        QString ago;
    };
    const Case cases[] = {
        {"2026-11-20T00:41:00", u"00:41"_s, u"Today"_s, u"just now"_s},
        {"2026-11-20T00:39:01", u"00:39"_s, u"Today"_s, u"just now"_s},
        {"2026-11-20T00:38:01", u"00:38"_s, u"Today"_s, u"1 minute ago"_s},
        {"2026-11-19T23:50:00", u"Yesterday"_s, u"Yesterday"_s, u"50 minutes ago"_s},
        {"2026-11-19T00:00:00", u"Yesterday"_s, u"Yesterday"_s, u"yesterday"_s},
        {"2026-11-17T08:00:00", u"17 Nov"_s, u"Tuesday 17 November"_s, u"on 17 Nov"_s},
        {"2025-12-31T23:59:00", u"31 Dec 2025"_s, u"Wednesday 31 December 2025"_s,
         u"on 31 Dec 2025"_s},
    };
    for (const Case& each : cases) {
        const Timestamp moment = at(each.moment);
        EXPECT_EQ(entryTimeText(moment, now, british), each.entry) << each.moment;
        EXPECT_EQ(dayHeading(localDay(moment), now), each.heading) << each.moment;
        EXPECT_EQ(timeAgoText(moment, now), each.ago) << each.moment;
    }
    const Timestamp evening = at("2026-11-20T21:00:00");
    EXPECT_EQ(timeAgoText(at("2026-11-20T20:00:00"), evening), u"1 hour ago"_s);
    EXPECT_EQ(timeAgoText(at("2026-11-20T09:01:00"), evening), u"11 hours ago"_s);
    EXPECT_EQ(comingTimeText(at("2026-11-21T00:15:00"), evening, british), u"at 00:15"_s);
    EXPECT_EQ(comingTimeText(at("2026-11-21T03:00:00"), evening, british), u"tomorrow at 03:00"_s);
}

TEST_F(TimeTextsTest, WritesTheHoursAsTheLocaleDoes) {
    const Timestamp moment = at("2026-11-20T21:05:30");
    EXPECT_EQ(clockText(moment, QLocale::c()), u"21:05"_s);
    EXPECT_EQ(clockText(moment, QLocale(QLocale::German)), u"21:05"_s);
    EXPECT_TRUE(
        clockText(moment, QLocale(QLocale::English, QLocale::UnitedStates)).startsWith(u"9:05"_s));
}

TEST(CountTextsTest, CountsAndMeasures) {
    EXPECT_EQ(fileCount(1), u"1 file"_s);
    EXPECT_EQ(entryCount(0), u"0 entries"_s);
    EXPECT_EQ(folderCount(37), u"37 folders"_s);
    const std::pair<std::uint64_t, QString> sizes[] = {
        {0, u"0 bytes"_s},
        {1, u"1 byte"_s},
        {999, u"999 bytes"_s},
        {1000, u"1 KB"_s},
        {84'400, u"84 KB"_s},
        {999'600, u"1.0 MB"_s},
        {3'840'000'000, u"3.8 GB"_s},
        {9'960'000, u"10 MB"_s},
    };
    for (const auto& [bytes, said] : sizes)
        EXPECT_EQ(sizeText(bytes), said) << bytes;
}

TEST(CountTextsTest, SaysWhatUndoingCameTo) {
    EXPECT_EQ(putBackText(1, 0, u"scan.pdf"_s), u"Put back scan.pdf"_s);
    EXPECT_EQ(putBackText(36, 0), u"Put back 36 files"_s);
    EXPECT_EQ(putBackText(36, 2), u"Put back 36 files, 2 couldn’t be"_s);
    EXPECT_EQ(putBackText(0, 1, u"scan.pdf"_s),
              u"Couldn’t put scan.pdf back. It has moved or gone."_s);
}

TEST(FileKindWordTest, KnowsAFileByItsName) {
    const std::pair<QString, QString> words[] = {
        {u"Invoice 3.5.PDF"_s, u"pdf"_s}, {u"CMakeLists.txt"_s, u"code"_s},
        {u"notes.txt"_s, u"document"_s},  {u"Makefile"_s, u"code"_s},
        {u".hidden"_s, u"other"_s},       {u"x.nonsense"_s, u"other"_s}};
    for (const auto& [name, word] : words)
        EXPECT_EQ(fileKindWord(name), word) << name.toStdString();
}

TEST(ShownNameTest, KeepsANameOnOneLineAndItsExtensionAtItsEnd) {
    EXPECT_EQ(shownName(u"new\nline\u202Egnp.txt"_s), u"new\uFFFDline\uFFFDgnp.txt"_s);
    EXPECT_EQ(shownName(u"\u05DE\u200D 🎉.pdf"_s), u"\u05DE\u200D 🎉.pdf"_s);
}

} // namespace
} // namespace quillon::testing
