#include "ui/TimeTexts.h"

#include <QCoreApplication>
#include <QDateTime>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(TimeTexts)
};

QDateTime local(Timestamp moment) {
    return QDateTime::fromMSecsSinceEpoch(
        std::chrono::duration_cast<std::chrono::milliseconds>(moment.time_since_epoch()).count());
}

/// Days and months are named in the language of the sentences around them, whatever the locale of
/// numbers and hours is.
QLocale languageOfTexts() {
    return QLocale(Texts::tr("en_GB", "the locale in whose language days and months are named"));
}

QString shortDate(QDate day, QDate today) {
    return languageOfTexts().toString(day, day.year() == today.year()
                                               ? Texts::tr("d MMM", "a day of this year")
                                               : Texts::tr("d MMM yyyy", "a day"));
}

} // namespace

QDate localDay(Timestamp moment) {
    return local(moment).date();
}

QString clockText(Timestamp moment, const QLocale& locale) {
    const QTime time = local(moment).time();
    // The locale that stands for none writes seconds.
    return locale.language() == QLocale::C ? time.toString(u"HH:mm"_s)
                                           : locale.toString(time, QLocale::ShortFormat);
}

QString entryTimeText(Timestamp moment, Timestamp now, const QLocale& locale) {
    const QDate day = localDay(moment);
    const QDate today = localDay(now);
    if (day == today)
        return clockText(moment, locale);
    return day == today.addDays(-1) ? Texts::tr("Yesterday") : shortDate(day, today);
}

QString spokenTimeText(Timestamp moment, Timestamp now, const QLocale& locale) {
    const bool isToday = localDay(moment) == localDay(now);
    return Texts::tr("%1, %2", "a day and a time of it")
        .arg(isToday ? Texts::tr("Today") : entryTimeText(moment, now, locale),
             clockText(moment, locale));
}

QString dayHeading(QDate day, Timestamp now) {
    const QDate today = localDay(now);
    if (day == today)
        return Texts::tr("Today");
    if (day == today.addDays(-1))
        return Texts::tr("Yesterday");
    return languageOfTexts().toString(day, day.year() == today.year()
                                               ? Texts::tr("dddd d MMMM", "a day of this year")
                                               : Texts::tr("dddd d MMMM yyyy", "a day"));
}

QString timeAgoText(Timestamp moment, Timestamp now) {
    const auto passed = now - moment;
    const auto minutes =
        static_cast<int>(std::chrono::duration_cast<std::chrono::minutes>(passed).count());
    if (passed < std::chrono::minutes(1))
        return Texts::tr("just now");
    if (passed < std::chrono::hours(1))
        return minutes == 1 ? Texts::tr("1 minute ago")
                            : Texts::tr("%n minutes ago", nullptr, minutes);
    const QDate day = localDay(moment);
    const QDate today = localDay(now);
    if (day == today)
        return minutes < 120 ? Texts::tr("1 hour ago")
                             : Texts::tr("%n hours ago", nullptr, minutes / 60);
    if (day == today.addDays(-1))
        return Texts::tr("yesterday");
    return Texts::tr("on %1", "a day").arg(shortDate(day, today));
}

QString comingTimeText(Timestamp moment, Timestamp now, const QLocale& locale) {
    const bool isSoon = moment - now < std::chrono::hours(6) || localDay(moment) == localDay(now);
    return (isSoon ? Texts::tr("at %1", "a time soon") : Texts::tr("tomorrow at %1"))
        .arg(clockText(moment, locale));
}

} // namespace quillon
