#include "ui/editor/CalendarMonth.h"

#include <QLocale>

namespace quillon {

namespace {

constexpr int daysShown = 6 * 7;

/// The day in the top corner.
QDate firstShown(QDate day) {
    const QDate first(day.year(), day.month(), 1);
    const int before = (first.dayOfWeek() - int(QLocale().firstDayOfWeek()) + 7) % 7;
    return first.addDays(-before);
}

QString words(QDate day) {
    return QLocale().toString(day, QLocale::LongFormat);
}

} // namespace

void CalendarMonth::open(const QString& day) {
    const QDate stored = QDate::fromString(day, u"yyyy-M-d");
    show(stored.isValid() ? stored : QDate::currentDate());
}

void CalendarMonth::stepDays(int days) {
    show(current_.addDays(days));
}

void CalendarMonth::stepMonths(int months) {
    show(current_.addMonths(months));
}

QString CalendarMonth::title() const {
    return tr("%1 %2", "a month and its year")
        .arg(QLocale().standaloneMonthName(current_.month()))
        .arg(current_.year());
}

QStringList CalendarMonth::weekdays() {
    const QLocale locale;
    QStringList names;
    for (int i = 0; i < 7; ++i)
        names.append(locale.standaloneDayName((int(locale.firstDayOfWeek()) - 1 + i) % 7 + 1,
                                              QLocale::ShortFormat));
    return names;
}

QString CalendarMonth::current() const {
    return current_.toString(Qt::ISODate);
}

QString CalendarMonth::spoken() const {
    return words(current_);
}

int CalendarMonth::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : daysShown;
}

QVariant CalendarMonth::data(const QModelIndex& index, int role) const {
    const QDate day = firstShown(current_).addDays(index.row());
    switch (role) {
    case numberRole:
        return day.day();
    case dayRole:
        return day.toString(Qt::ISODate);
    case spokenRole:
        return words(day);
    case isInMonthRole:
        return day.month() == current_.month();
    case isCurrentRole:
        return day == current_;
    case isTodayRole:
        return day == QDate::currentDate();
    default:
        return {};
    }
}

QHash<int, QByteArray> CalendarMonth::roleNames() const {
    return {{numberRole, "number"},       {dayRole, "day"},
            {spokenRole, "spoken"},       {isInMonthRole, "isInMonth"},
            {isCurrentRole, "isCurrent"}, {isTodayRole, "isToday"}};
}

void CalendarMonth::show(QDate day) {
    if (!day.isValid())
        return;
    current_ = day;
    Q_EMIT dataChanged(index(0), index(daysShown - 1));
    Q_EMIT shown();
}

} // namespace quillon
