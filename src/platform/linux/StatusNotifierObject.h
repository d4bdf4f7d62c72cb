#pragma once

#include "platform/TrayItem.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QList>
#include <QObject>

namespace quillon {

/// A picture as the bus carries it: (iiay).
struct BusPicture {
    int width = 0;
    int height = 0;
    QByteArray pixels;
};
QDBusArgument& operator<<(QDBusArgument& argument, const BusPicture& picture);
const QDBusArgument& operator>>(const QDBusArgument& argument, BusPicture& picture);

/// A tool tip as the bus carries it: (sa(iiay)ss).
struct BusToolTip {
    QString iconName = {};
    QList<BusPicture> pictures = {};
    QString title;
    QString text;
};
QDBusArgument& operator<<(QDBusArgument& argument, const BusToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, BusToolTip& toolTip);

/// The object that a desktop's status area reads and calls.
class StatusNotifierObject final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title CONSTANT)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(uint WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconThemePath READ none CONSTANT)
    Q_PROPERTY(QString IconName READ none CONSTANT)
    Q_PROPERTY(QList<quillon::BusPicture> IconPixmap READ pictures)
    Q_PROPERTY(QString OverlayIconName READ none CONSTANT)
    Q_PROPERTY(QList<quillon::BusPicture> OverlayIconPixmap READ noPictures CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ none CONSTANT)
    Q_PROPERTY(QList<quillon::BusPicture> AttentionIconPixmap READ pictures)
    Q_PROPERTY(QString AttentionMovieName READ none CONSTANT)
    Q_PROPERTY(quillon::BusToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ isMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)

public:
    static constexpr const char* path = "/StatusNotifierItem";
    static constexpr const char* menuPath = "/MenuBar";

    /// Once a process, before an object is registered.
    static void registerTypes();

    void setLook(const TrayLook& look);
    std::function<void(int x, int y)> onActivated;

    [[nodiscard]] QString category() const { return QStringLiteral("ApplicationStatus"); }
    [[nodiscard]] QString id() const { return QStringLiteral("quillon"); }
    [[nodiscard]] QString title() const { return QStringLiteral("Quillon"); }
    [[nodiscard]] QString status() const;
    [[nodiscard]] uint windowId() const { return 0; }
    [[nodiscard]] QString none() const { return {}; }
    [[nodiscard]] QList<BusPicture> pictures() const;
    [[nodiscard]] QList<BusPicture> noPictures() const { return {}; }
    [[nodiscard]] BusToolTip toolTip() const;
    [[nodiscard]] bool isMenu() const { return false; }
    [[nodiscard]] QDBusObjectPath menu() const {
        return QDBusObjectPath(QString::fromLatin1(menuPath));
    }

public Q_SLOTS:
    void Activate(int x, int y);                        // NOLINT(readability-identifier-naming)
    void SecondaryActivate(int x, int y);               // NOLINT(readability-identifier-naming)
    void ContextMenu(int x, int y);                     // NOLINT(readability-identifier-naming)
    void Scroll(int delta, const QString& orientation); // NOLINT(readability-identifier-naming)

Q_SIGNALS:
    void NewTitle();                       // NOLINT(readability-identifier-naming)
    void NewIcon();                        // NOLINT(readability-identifier-naming)
    void NewAttentionIcon();               // NOLINT(readability-identifier-naming)
    void NewToolTip();                     // NOLINT(readability-identifier-naming)
    void NewStatus(const QString& status); // NOLINT(readability-identifier-naming)

private:
    TrayLook look_;
};

} // namespace quillon

Q_DECLARE_METATYPE(quillon::BusPicture)
Q_DECLARE_METATYPE(QList<quillon::BusPicture>)
Q_DECLARE_METATYPE(quillon::BusToolTip)
