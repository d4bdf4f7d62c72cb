#pragma once

#include <QAbstractListModel>
#include <QDate>
#include <QStringList>

namespace quillon {

/// One month of a calendar, six weeks of seven days, for a day to be chosen from.
class CalendarMonth final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(QString title READ title NOTIFY shown)
    Q_PROPERTY(QStringList weekdays READ weekdays CONSTANT)
    Q_PROPERTY(QString current READ current NOTIFY shown)
    Q_PROPERTY(QString spoken READ spoken NOTIFY shown)

public:
    enum Role {
        numberRole = Qt::UserRole, ///< of the day in its month
        dayRole,                   ///< as a condition stores it: "2026-10-14"
        spokenRole,                ///< in words
        isInMonthRole,
        isCurrentRole,
        isTodayRole,
    };

    using QAbstractListModel::QAbstractListModel;

    /// Turns to the month of a stored day; to today's for a text that is none.
    Q_INVOKABLE void open(const QString& day);
    Q_INVOKABLE void stepDays(int days);
    Q_INVOKABLE void stepMonths(int months);

    [[nodiscard]] QString title() const;
    [[nodiscard]] static QStringList weekdays();
    [[nodiscard]] QString current() const;
    [[nodiscard]] QString spoken() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void shown();

private:
    void show(QDate day);

    QDate current_ = QDate::currentDate();
};

} // namespace quillon
