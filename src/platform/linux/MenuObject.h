#pragma once

#include "platform/TrayItem.h"

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QObject>
#include <QVariantMap>

namespace quillon {

/// An entry of the menu and its properties, as the bus carries it: (ia{sv}).
struct BusMenuEntry {
    int id = 0;
    QVariantMap properties;
};
QDBusArgument& operator<<(QDBusArgument& argument, const BusMenuEntry& entry);
const QDBusArgument& operator>>(const QDBusArgument& argument, BusMenuEntry& entry);

/// An entry with those below it: (ia{sv}av).
struct BusMenuLayout {
    BusMenuEntry entry;
    QList<BusMenuLayout> below;
};
QDBusArgument& operator<<(QDBusArgument& argument, const BusMenuLayout& layout);
const QDBusArgument& operator>>(const QDBusArgument& argument, BusMenuLayout& layout);

/// What a person did with an entry, as the bus carries it: (isvu).
struct BusMenuEvent {
    int id = 0;
    QString name;
    QDBusVariant data;
    uint time = 0;
};
QDBusArgument& operator<<(QDBusArgument& argument, const BusMenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, BusMenuEvent& event);

/// The menu that a desktop's status area shows for our item. One level: the entry 0 holds the
/// others, which count from 1.
class MenuObject final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    /// Once a process, before an object is registered.
    static void registerTypes();

    void setItems(std::vector<TrayMenuItem> items);
    /// Before it is registered.
    void setRightToLeft(bool isRightToLeft) { isRightToLeft_ = isRightToLeft; }

    [[nodiscard]] uint version() const { return 3; }
    [[nodiscard]] QString textDirection() const {
        return isRightToLeft_ ? QStringLiteral("rtl") : QStringLiteral("ltr");
    }
    [[nodiscard]] QString status() const { return QStringLiteral("normal"); }
    [[nodiscard]] QStringList iconThemePath() const { return {}; }

public Q_SLOTS:
    // NOLINTBEGIN(readability-identifier-naming)
    uint GetLayout(int parent, int depth, const QStringList& names, quillon::BusMenuLayout& layout);
    QList<quillon::BusMenuEntry> GetGroupProperties(const QList<int>& ids,
                                                    const QStringList& names);
    QDBusVariant GetProperty(int id, const QString& name);
    void Event(int id, const QString& event, const QDBusVariant& data, uint time);
    QList<int> EventGroup(const QList<quillon::BusMenuEvent>& events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& unknown);
    // NOLINTEND(readability-identifier-naming)

Q_SIGNALS:
    void LayoutUpdated(uint revision, int parent); // NOLINT(readability-identifier-naming)

private:
    [[nodiscard]] QVariantMap properties(int id) const;

    std::vector<TrayMenuItem> items_;
    uint revision_ = 1;
    bool isRightToLeft_ = false;
};

} // namespace quillon

Q_DECLARE_METATYPE(quillon::BusMenuEntry)
Q_DECLARE_METATYPE(QList<quillon::BusMenuEntry>)
Q_DECLARE_METATYPE(quillon::BusMenuLayout)
Q_DECLARE_METATYPE(quillon::BusMenuEvent)
Q_DECLARE_METATYPE(QList<quillon::BusMenuEvent>)
