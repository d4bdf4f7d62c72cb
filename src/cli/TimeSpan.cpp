#include "cli/TimeSpan.h"

#include <QDateTime>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

std::optional<QDate> dayOf(const QString& word, const QDate& today) {
    if (word == u"today")
        return today;
    if (word == u"yesterday")
        return today.addDays(-1);
    const QDate day = QDate::fromString(word, u"yyyy-MM-dd"_s);
    return day.isValid() ? std::optional(day) : std::nullopt;
}

std::optional<QTime> timeOf(const QString& word) {
    const QTime time = QTime::fromString(word, u"H:mm"_s);
    return time.isValid() ? std::optional(time) : std::nullopt;
}

std::optional<QDateTime> momentOf(const QString& text, const QDate& today) {
    const QStringList words = text.simplified().toLower().split(u' ');
    if (words.size() > 2)
        return std::nullopt;
    if (const auto time = timeOf(words.front()); time && words.size() == 1)
        return QDateTime(today, *time);
    const auto day = dayOf(words.front(), today);
    const auto time = words.size() == 2 ? timeOf(words.back()) : QTime(0, 0);
    if (!day || !time)
        return std::nullopt;
    return words.size() == 2 ? QDateTime(*day, *time) : day->startOfDay();
}

/// A timestamp reaches from 1677 to 2262 alone.
Timestamp nearestTimestamp(const QDateTime& moment) {
    using std::chrono::seconds;
    constexpr auto first = std::chrono::ceil<seconds>(Timestamp::min()).time_since_epoch().count();
    constexpr auto last = std::chrono::floor<seconds>(Timestamp::max()).time_since_epoch().count();
    return Timestamp(seconds(std::clamp<qint64>(moment.toSecsSinceEpoch(), first, last)));
}

Chosen<std::optional<Timestamp>> moment(const std::string& given, const QDate& today) {
    if (given.empty())
        return std::nullopt;
    const QString text = QString::fromStdString(given);
    const auto read = momentOf(text, today);
    if (!read)
        return refusal(ExitCode::usage,
                       u"“%1” is not a time; try “yesterday 18:00”, “today”, “22:30” or "
                       "“2026-03-31 08:00”"_s.arg(text));
    return nearestTimestamp(*read);
}

} // namespace

Chosen<TimeSpan> timeSpan(const std::string& since, const std::string& before, Timestamp now) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(now).time_since_epoch();
    const QDate today = QDateTime::fromSecsSinceEpoch(seconds.count()).date();
    const auto from = moment(since, today);
    if (!from)
        return std::unexpected(from.error());
    const auto to = moment(before, today);
    if (!to)
        return std::unexpected(to.error());
    return TimeSpan{.since = *from, .before = *to};
}

} // namespace quillon
