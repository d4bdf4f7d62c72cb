#include "model/JsonDate.h"
#include "model/JsonReader.h"
#include "model/RuleFile.h"
#include "support/Generators.h"

#include <QJsonDocument>
#include <gtest/gtest.h>

namespace quillon {

namespace {

/// Through the bytes of a file, not only through objects in memory.
JsonReader throughText(const QJsonObject& object) {
    const QByteArray text = QJsonDocument(object).toJson(QJsonDocument::Compact);
    return JsonReader(QJsonDocument::fromJson(text).object());
}

} // namespace

// Rule files hold rules with their conditions and actions.
RC_GTEST_PROP(RoundTrip, RuleFileKeepsEveryField, (const std::vector<Rule>& rules)) {
    const QByteArray text = encodeRules(rules);
    const auto decoded = decodeRules(text);
    RC_ASSERT(decoded.has_value());
    RC_ASSERT(*decoded == rules);
    RC_ASSERT(encodeRules(*decoded) == text);
}

RC_GTEST_PROP(RoundTrip, FolderKeepsEveryField, (const WatchedFolder& folder)) {
    const auto decoded = folderFromJson(throughText(toJson(folder)));
    RC_ASSERT(decoded.has_value());
    RC_ASSERT(*decoded == folder);
}

RC_GTEST_PROP(RoundTrip, LogEntryKeepsEveryField, (const LogEntry& entry)) {
    const auto decoded = logEntryFromJson(throughText(toJson(entry)), Timestamp{});
    RC_ASSERT(decoded.has_value());
    RC_ASSERT(*decoded == entry);
}

// The clock counts in nanoseconds; a number must not drift however often it is stored.
RC_GTEST_PROP(RoundTrip, DateNumberIsStable, ()) {
    const auto nanos = *rc::gen::inRange<std::int64_t>(1'104'537'600'000'000'000, INT64_MAX / 2);
    const Timestamp moment{std::chrono::nanoseconds{nanos}};
    const double stored = jsonDate(moment);
    const auto read = timestampFromJsonDate(stored);
    RC_ASSERT(read.has_value());
    RC_ASSERT(std::chrono::abs(*read - moment) < std::chrono::nanoseconds{500});
    RC_ASSERT(jsonDate(*read) == stored);
}

TEST(JsonDate, CountsFrom2001) {
    using namespace std::chrono;
    EXPECT_EQ(jsonDate(sys_days{year{2001} / 1 / 1}), 0.0);
    EXPECT_EQ(jsonDate(sys_days{year{2000} / 12 / 31} + 12h), -43200.0);
    EXPECT_EQ(jsonDate(sys_days{year{2026} / 5 / 23} + 8h + 125ms), 801216000.125);
    EXPECT_EQ(timestampFromJsonDate(-0.25), sys_days{year{2000} / 12 / 31} + 24h - 250ms);
    for (const double absurd : {1e300, -1e11, 9e9, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_FALSE(timestampFromJsonDate(absurd)) << absurd;
}

} // namespace quillon
