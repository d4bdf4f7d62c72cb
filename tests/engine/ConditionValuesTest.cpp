#include "engine/ConditionValues.h"

#include <QDateTime>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <ctime>

namespace quillon {
namespace {

using namespace Qt::Literals::StringLiterals;

/// The process lives in another time zone for a while.
class InTimeZone {
public:
    explicit InTimeZone(const char* zone) : before_(qgetenv("TZ")) { change(zone); }
    ~InTimeZone() { change(before_.isNull() ? nullptr : before_.constData()); }
    InTimeZone(const InTimeZone&) = delete;
    InTimeZone& operator=(const InTimeZone&) = delete;

private:
    static void change(const char* zone) {
        zone ? qputenv("TZ", zone) : qunsetenv("TZ");
        tzset();
    }
    QByteArray before_;
};

TEST(ParsedNumber, TakesWholeFiniteNumbers) {
    const struct {
        QString text;
        std::optional<double> number;
    } rows[] = {
        {u"7"_s, 7},     {u"-0.5"_s, -0.5}, {u"+2"_s, 2},     {u".5"_s, .5},  {u"1e3"_s, 1000},
        {u"0x1F"_s, 31}, {u"-0x2"_s, -2},   {u""_s, {}},      {u" 7"_s, {}},  {u"7 "_s, {}},
        {u"7\n"_s, {}},  {u"7,5"_s, {}},    {u"1e999"_s, {}}, {u"inf"_s, {}}, {u"-nan"_s, {}},
        {u"0x"_s, {}},   {u"0x-1"_s, {}},   {u"--1"_s, {}},   {u"+-1"_s, {}}, {u"-+1"_s, {}},
        {u"ten"_s, {}},  {u"\u0663"_s, {}}, {u"1_000"_s, {}}, {u"7\0"_s, {}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(parsedNumber(row.text), row.number) << row.text.toStdString();
}

RC_GTEST_PROP(ParsedNumber, AgreesWithTheCLibrary, ()) {
    const auto characters = rc::gen::elementOf(std::string("0123456789..--++eExXpaf"));
    const auto text = *rc::gen::resize(6, rc::gen::container<std::string>(characters));
    char* end = nullptr;
    errno = 0;
    const double number = std::strtod(text.c_str(), &end);
    RC_PRE(errno == 0);
    const bool isWhole = !text.empty() && end == text.c_str() + text.size();
    const auto parsed = parsedNumber(QString::fromStdString(text));
    RC_ASSERT(parsed.has_value() == (isWhole && std::isfinite(number)));
    RC_ASSERT(!parsed || *parsed == number);
}

TEST(ParsedDay, IsTheStartOfTheDayHere) {
    // Rules of time zones are spelled out, so that a machine without a table of them will do.
    const char* const newYork = "EST5EDT,M3.2.0,M11.1.0";
    const char* const saoPaulo = "<-03>3<-02>,M11.1.0/0,M2.3.0/0"; // skips midnight in November
    const struct {
        const char* zone;
        QString day;
        QString start; ///< empty: there is no such day
    } rows[] = {
        {"UTC0", u"2024-05-01"_s, u"2024-05-01T00:00:00Z"_s},
        {"UTC0", u"2024-5-1"_s, u"2024-05-01T00:00:00Z"_s},
        {"UTC0", u"2024-02-29"_s, u"2024-02-29T00:00:00Z"_s},
        {newYork, u"2024-05-01"_s, u"2024-05-01T04:00:00Z"_s},
        {newYork, u"2024-12-01"_s, u"2024-12-01T05:00:00Z"_s},
        {newYork, u"2024-03-10"_s, u"2024-03-10T05:00:00Z"_s},
        {"IST-5:30", u"2024-05-01"_s, u"2024-04-30T18:30:00Z"_s},
        {saoPaulo, u"2018-11-04"_s, u"2018-11-04T03:00:00Z"_s},
        {"UTC0", u"2023-02-29"_s, {}},
        {"UTC0", u"2024-13-01"_s, {}},
        {"UTC0", u"2024-05-00"_s, {}},
        {"UTC0", u"24-05-01"_s, {}},
        {"UTC0", u"2024-005-01"_s, {}},
        {"UTC0", u"2024-05-01 "_s, {}},
        {"UTC0", u"2024-05-01T00:00"_s, {}},
        {"UTC0", u"2024/05/01"_s, {}},
        {"UTC0", u"-2024-05-01"_s, {}},
        {"UTC0", u"0000-01-01"_s, {}},
        {"UTC0", u"\u0662024-05-01"_s, {}},
        {"UTC0", u""_s, {}},
    };
    for (const auto& row : rows) {
        const InTimeZone zone(row.zone);
        const auto day = parsedDay(row.day);
        ASSERT_EQ(day.has_value(), !row.start.isEmpty()) << row.day.toStdString();
        if (!day)
            continue;
        EXPECT_EQ(day->time_since_epoch(),
                  std::chrono::milliseconds(
                      QDateTime::fromString(row.start, Qt::ISODate).toMSecsSinceEpoch()))
            << row.zone << ' ' << row.day.toStdString();
    }
}

TEST(ParsedDay, StaysInOrderBeyondWhatATimestampHolds) {
    EXPECT_LT(*parsedDay(u"0001-01-01"), *parsedDay(u"1700-01-01"));
    EXPECT_GT(*parsedDay(u"9999-12-31"), *parsedDay(u"2250-01-01"));
}

} // namespace
} // namespace quillon
