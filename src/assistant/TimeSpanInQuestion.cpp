#include "assistant/TimeSpanInQuestion.h"

#include "assistant/QuestionWords.h"
#include "assistant/TimeWords.h"

#include <QTimeZone>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 minute = 60;
constexpr qint64 hour = 60 * minute;

/// A part of the words, and the time that it stands for.
struct Found {
    qsizetype words = 0; ///< none: nothing was found
    AskedSpan span = {};
};

class TimeReader {
public:
    TimeReader(const QStringList& words, const QDateTime& now)
        : words_(words), now_(now), zone_(now.timeZone()), today_(now.date()) {}

    TimeInQuestion read() {
        std::optional<QTime> clock;
        for (qsizetype i = 0; i < words_.size();) {
            const Found found = limited(i);
            const auto time = found.words > 0 ? std::nullopt : clockTime(i);
            if (found.words > 0) {
                if (!result_.span)
                    result_.span = found.span;
                i += found.words;
            } else if (time) {
                clock = time;
                ++i;
            } else {
                const bool isLatest =
                    placeIn(words_[i], u"latest newest recent recently last lately "
                                       "just") > 0;
                result_.wantsLatest = result_.wantsLatest || isLatest;
                result_.otherWords.append(words_[i++]);
            }
        }
        if (clock)
            aroundClock(*clock);
        return result_;
    }

private:
    [[nodiscard]] QString word(qsizetype at) const { return words_.value(at); }

    [[nodiscard]] bool isOneOf(qsizetype at, QStringView list) const {
        return placeIn(word(at), list) > 0;
    }

    [[nodiscard]] QDateTime start(const QDate& day) const { return day.startOfDay(zone_); }

    /// From the first day to before the last.
    [[nodiscard]] AskedSpan days(const QDate& first, const QDate& last) const {
        return {.from = start(first), .until = start(last)};
    }
    [[nodiscard]] AskedSpan day(const QDate& date) const { return days(date, date.addDays(1)); }
    [[nodiscard]] AskedSpan month(int year, int month) const {
        const QDate first(year, month, 1);
        return days(first, first.addMonths(1));
    }
    [[nodiscard]] AskedSpan year(int year) const {
        return days(QDate(year, 1, 1), QDate(year + 1, 1, 1));
    }
    [[nodiscard]] QDate monday() const { return today_.addDays(1 - today_.dayOfWeek()); }
    /// The week that many weeks back.
    [[nodiscard]] AskedSpan week(int back) const {
        const QDate first = monday().addDays(-7 * back);
        return days(first, first.addDays(7));
    }
    [[nodiscard]] AskedSpan monthBack(int back) const {
        const QDate within = today_.addMonths(-back);
        return month(within.year(), within.month());
    }
    [[nodiscard]] AskedSpan hours(const QDate& date, int from, int until) const {
        const auto at = [&](int of) {
            return of < 24 ? QDateTime(date, QTime(of, 0), zone_)
                           : QDateTime(date.addDays(1), QTime(of - 24, 0), zone_);
        };
        return {.from = from == 0 ? start(date) : at(from),
                .until = until == 24 ? start(date.addDays(1)) : at(until)};
    }

    /// The day, or the part of it that the next word names.
    [[nodiscard]] Found dayWithPart(qsizetype next, qsizetype words, const QDate& date) const {
        if (const auto part = partOfDay(word(next), date))
            return {.words = words + 1, .span = *part};
        return {.words = words, .span = day(date)};
    }

    [[nodiscard]] std::optional<AskedSpan> partOfDay(const QString& part, const QDate& date) const {
        if (part == u"morning")
            return hours(date, 0, 12);
        if (part == u"afternoon")
            return hours(date, 12, 18);
        if (part == u"evening")
            return hours(date, 17, 24);
        if (part == u"night")
            return hours(date, 18, 24 + 6);
        return std::nullopt;
    }

    /// "since Thursday", "before March", "between Monday and Wednesday", or a period.
    [[nodiscard]] Found limited(qsizetype at) const {
        const Found first = period(at + 1, true);
        if (isOneOf(at, u"between from") && first.words > 0) {
            const qsizetype joint = at + 1 + first.words;
            const Found last =
                isOneOf(joint, u"and to until till") ? period(joint + 1, true) : Found();
            if (last.words > 0)
                return {.words = first.words + last.words + 2,
                        .span = {.from = first.span.from, .until = last.span.until}};
        }
        if (first.words > 0) {
            if (word(at) == u"since")
                return {.words = first.words + 1, .span = {.from = first.span.from, .until = {}}};
            if (word(at) == u"after")
                return {.words = first.words + 1, .span = {.from = first.span.until, .until = {}}};
            if (isOneOf(at, u"before until till"))
                return {.words = first.words + 1, .span = {.from = {}, .until = first.span.from}};
        }
        return period(at, false);
    }

    /// A period with what introduces it; `isNamed` when a word before says that there is one.
    [[nodiscard]] Found period(qsizetype at, bool isNamed) const {
        qsizetype skipped = 0;
        while (skipped < 3 &&
               isOneOf(at + skipped, u"on in at during over within from the of around about by")) {
            isNamed = isNamed || word(at + skipped) != u"the";
            ++skipped;
        }
        Found found = plainPeriod(at + skipped, isNamed);
        if (found.words > 0)
            found.words += skipped;
        return found;
    }

    [[nodiscard]] Found plainPeriod(qsizetype at, bool isNamed) const {
        const QString first = word(at);
        if (first == u"today" || first == u"todays")
            return dayWithPart(at + 1, 1, today_);
        if (first == u"tonight")
            return {.words = 1, .span = hours(today_, 17, 24 + 6)};
        if (first == u"yesterday" || first == u"yesterdays")
            return dayWithPart(at + 1, 1, today_.addDays(-1));
        if (first == u"overnight")
            return {.words = 1, .span = hours(today_.addDays(-1), 18, 24 + 6)};
        if (first == u"day" && word(at + 1) == u"before" && word(at + 2) == u"yesterday")
            return {.words = 3, .span = day(today_.addDays(-2))};
        if (first == u"weekend" && isNamed)
            return {.words = 1, .span = weekend(0)};
        if (first == u"this")
            return current(at + 1);
        if (isOneOf(at, u"last previous past"))
            return former(at + 1);
        if (const Found found = ago(at); found.words > 0)
            return found;
        if (const int weekday = weekdayOf(first);
            weekday > 0 && (isNamed || !isShortWeekday(first)))
            return dayWithPart(at + 1, 1, past(weekday));
        return date(at, isNamed);
    }

    /// The latest day of that name before today.
    [[nodiscard]] QDate past(int weekday) const {
        const int back = (today_.dayOfWeek() - weekday + 7) % 7;
        return today_.addDays(back == 0 ? -7 : -back);
    }

    /// The weekend that this week ends with once it has begun, else the one before; `back` further.
    [[nodiscard]] AskedSpan weekend(int back) const {
        const QDate saturday =
            monday().addDays(today_.dayOfWeek() >= 6 ? 5 : -2).addDays(-7 * back);
        return days(saturday, saturday.addDays(2));
    }

    /// What follows "this".
    [[nodiscard]] Found current(qsizetype at) const {
        const QString what = singular(word(at));
        if (what == u"week")
            return {.words = 2, .span = week(0)};
        if (what == u"month")
            return {.words = 2, .span = monthBack(0)};
        if (what == u"year")
            return {.words = 2, .span = year(today_.year())};
        if (what == u"weekend")
            return {.words = 2, .span = weekend(0)};
        if (const auto part = partOfDay(what, today_))
            return {.words = 2, .span = *part};
        if (const int weekday = weekdayOf(what); weekday > 0)
            return {.words = 2, .span = day(monday().addDays(weekday - 1))};
        if (const int month = monthOf(what); month > 0)
            return {.words = 2, .span = this->month(today_.year(), month)};
        return {};
    }

    /// What follows "last": a unit, so many units, a weekday or a month.
    [[nodiscard]] Found former(qsizetype at) const {
        const QString what = singular(word(at));
        if (what == u"night")
            return {.words = 2, .span = hours(today_.addDays(-1), 18, 24 + 6)};
        if (what == u"week")
            return {.words = 2, .span = week(1)};
        if (what == u"month")
            return {.words = 2, .span = monthBack(1)};
        if (what == u"year")
            return {.words = 2, .span = year(today_.year() - 1)};
        if (what == u"weekend")
            return {.words = 2, .span = weekend(today_.dayOfWeek() >= 6 ? 1 : 0)};
        if (const int weekday = weekdayOf(word(at)); weekday > 0)
            return dayWithPart(at + 1, 2, past(weekday));
        if (const int named = monthOf(word(at)); named > 0)
            return {.words = 2,
                    .span = month(today_.year() - (named >= today_.month() ? 1 : 0), named)};
        const Amount amount = amountAt(at, true);
        if (amount.words == 0)
            return {};
        return {.words = amount.words + 1,
                .span = {.from = back(amount), .until = now_.addSecs(1)}};
    }

    /// "3 days", "a couple of hours", "few weeks"
    struct Amount {
        qsizetype words = 0; ///< none: it is no amount
        int number = 0;
        QString unit = {};
        bool isVague = false;
    };

    /// `mayLackNumber` for "last hour".
    [[nodiscard]] Amount amountAt(qsizetype at, bool mayLackNumber) const {
        Amount amount;
        qsizetype next = at;
        if (word(next) == u"a" && isOneOf(next + 1, u"few couple"))
            ++next;
        amount.isVague = isOneOf(next, u"few couple");
        amount.number = word(next) == u"few" ? 4 : numberOf(word(next));
        if (amount.number > 0)
            ++next;
        else if (mayLackNumber)
            amount.number = 1;
        if (amount.isVague && word(next) == u"of")
            ++next;
        amount.unit = singular(word(next));
        if (amount.unit == u"min" || amount.unit == u"mins")
            amount.unit = u"minute"_s;
        if (amount.unit == u"hr" || amount.unit == u"hrs")
            amount.unit = u"hour"_s;
        const bool isUnit = placeIn(amount.unit, u"minute hour day week month year") > 0;
        if (isUnit && amount.number > 0)
            amount.words = next + 1 - at;
        return amount;
    }

    /// The moment so long before now; of days and longer the start of the day.
    [[nodiscard]] QDateTime back(const Amount& amount) const {
        if (amount.unit == u"minute")
            return now_.addSecs(-minute * amount.number);
        if (amount.unit == u"hour")
            return now_.addSecs(-hour * amount.number);
        if (amount.unit == u"month")
            return start(today_.addMonths(-amount.number));
        if (amount.unit == u"year")
            return start(today_.addYears(-amount.number));
        return start(today_.addDays(-amount.number * (amount.unit == u"week" ? 7 : 1)));
    }

    [[nodiscard]] Found ago(qsizetype at) const {
        const Amount amount = amountAt(at, false);
        if (amount.words == 0 || word(at + amount.words) != u"ago")
            return {};
        const qsizetype words = amount.words + 1;
        const int number = amount.number;
        if (amount.unit == u"minute" || amount.unit == u"hour") {
            const qint64 seconds = number * (amount.unit == u"hour" ? hour : minute);
            const qint64 slack = std::max(hour / 2, seconds / 4);
            return {.words = words,
                    .span = {.from = now_.addSecs(-seconds - slack),
                             .until = now_.addSecs(std::min<qint64>(1, slack - seconds))}};
        }
        if (amount.isVague)
            return {.words = words,
                    .span = {.from = back({.number = number + 1, .unit = amount.unit}),
                             .until = start(today_)}};
        if (amount.unit == u"week")
            return {.words = words, .span = week(number)};
        if (amount.unit == u"month")
            return {.words = words, .span = monthBack(number)};
        if (amount.unit == u"year")
            return {.words = words, .span = year(today_.year() - number)};
        return {.words = words, .span = day(today_.addDays(-number))};
    }

    [[nodiscard]] Found date(qsizetype at, bool isNamed) const {
        const QString first = word(at);
        if (const QDate iso = QDate::fromString(first, Qt::ISODate);
            first.size() == 10 && iso.isValid())
            return {.words = 1, .span = day(iso)};
        if (const NumericDate written = numericDate(first); written.day > 0)
            return inYear(at + 1, 1, written.month, written.day, written.year);
        if (const int named = monthOf(first); named > 0) {
            if (const int number = dayOf(word(at + 1)); number > 0)
                return inYear(at + 2, 2, named, number);
            if (isNamed)
                return wholeMonth(at + 1, named);
        }
        if (const int number = dayOf(first); number > 0) {
            const qsizetype of = word(at + 1) == u"of" ? 1 : 0;
            if (const int named = monthOf(word(at + 1 + of)); named > 0)
                return inYear(at + 2 + of, 2 + of, named, number);
            if (isNamed && first.size() > 2 && !first.back().isDigit())
                return ordinal(number);
        }
        if (const int named = yearOf(first); named > 0 && isNamed)
            return {.words = 1, .span = year(named)};
        return {};
    }

    /// A day and month. Where no year is given it may be the next word.
    [[nodiscard]] Found inYear(qsizetype next, qsizetype words, int month, int number,
                               int given = 0) const {
        const int named = given > 0 ? given : yearOf(word(next));
        if (named > 0) {
            const QDate date(named, month, number);
            return date.isValid() ? Found{.words = words + (given > 0 ? 0 : 1), .span = day(date)}
                                  : Found();
        }
        // Eight years hold a 29th of February.
        for (int back = 0; back <= 8; ++back)
            if (const QDate date(today_.year() - back, month, number);
                date.isValid() && date <= today_)
                return {.words = words, .span = day(date)};
        return {};
    }

    [[nodiscard]] Found wholeMonth(qsizetype next, int named) const {
        if (const int year = yearOf(word(next)); year > 0)
            return {.words = 2, .span = month(year, named)};
        return {.words = 1, .span = month(today_.year() - (named > today_.month() ? 1 : 0), named)};
    }

    /// "on the 12th": the latest.
    [[nodiscard]] Found ordinal(int number) const {
        for (int back = 0; back <= 3; ++back) {
            const QDate within = today_.addMonths(-back);
            if (const QDate date(within.year(), within.month(), number);
                date.isValid() && date <= today_)
                return {.words = 1, .span = day(date)};
        }
        return {};
    }

    /// "15:30", "3pm", "3 pm" is not read.
    [[nodiscard]] std::optional<QTime> clockTime(qsizetype at) const {
        const QString text = word(at);
        for (const auto& format : {u"H:mm"_s, u"hap"_s, u"h:mmap"_s})
            if (const QTime time = QTime::fromString(text, format); time.isValid())
                return time;
        return std::nullopt;
    }

    /// An hour around the time, on the day that is asked about.
    void aroundClock(const QTime& time) {
        const AskedSpan within = result_.span.value_or(day(today_));
        if (!within.from || !within.until || within.from->daysTo(*within.until) > 1)
            return;
        QDateTime moment(within.from->date(), time, zone_);
        // "this afternoon at 3:30", "last night at 2:00"
        for (int halfDays = 0; halfDays < 2 && moment < *within.from; ++halfDays)
            moment = moment.addSecs(12 * hour);
        result_.span = {.from = moment.addSecs(-hour), .until = moment.addSecs(hour)};
    }

    const QStringList& words_;
    const QDateTime& now_;
    const QTimeZone zone_;
    const QDate today_;
    TimeInQuestion result_;
};

} // namespace

TimeInQuestion timeInQuestion(const QStringList& words, const QDateTime& now) {
    return TimeReader(words, now).read();
}

} // namespace quillon
