#include "platform/linux/PortalAppearance.h"

#include "platform/FileNames.h"
#include "platform/linux/PortalAddress.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QSettings>

#include <array>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

using Wishes = DesktopAppearance::Wishes;

constexpr auto settingsInterface = "org.freedesktop.portal.Settings"_L1;

struct Key {
    const char* group;
    const char* name;
    void (*take)(Wishes& wishes, const QVariant& value);
};

constexpr std::array keys{
    Key{"org.freedesktop.appearance", "color-scheme",
        [](Wishes& wishes, const QVariant& value) { wishes.prefersDark = value.toUInt() == 1; }},
    Key{"org.freedesktop.appearance", "contrast",
        [](Wishes& wishes, const QVariant& value) {
            wishes.prefersHighContrast = value.toUInt() == 1;
        }},
    Key{"org.gnome.desktop.interface", "enable-animations",
        [](Wishes& wishes, const QVariant& value) { wishes.reducesMotion = !value.toBool(); }},
    Key{"org.gnome.desktop.wm.preferences", "button-layout",
        [](Wishes& wishes, const QVariant& value) {
            wishes.hasButtonsAtStart = value.toString().section(u':', 0, 0).contains(u"close"_s);
        }},
};

/// Older portals wrap a value once more.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

bool toolkitReducesMotion(const std::string& configHome) {
    const auto setting = [&](const char* file, const char* key) {
        return QSettings(QString::fromStdString(joinPath(configHome, file)), QSettings::IniFormat)
            .value(QLatin1String(key))
            .toString();
    };
    const QString factor = setting("kdeglobals", "KDE/AnimationDurationFactor");
    const QString animations = setting("gtk-3.0/settings.ini", "Settings/gtk-enable-animations");
    return (!factor.isEmpty() && factor.toDouble() == 0) || animations == u"0" ||
           animations == u"false";
}

} // namespace

PortalAppearance::PortalAppearance(DesktopBus& bus, const std::string& configHome)
    : wishes_{.reducesMotion = toolkitReducesMotion(configHome)} {
    bus.whenConnected([this](std::optional<QDBusConnection> connection) {
        if (!connection)
            return;
        // A signal can't be connected to a type that hasn't been named yet.
        qRegisterMetaType<QDBusVariant>();
        connection->connect(portalName, portalPath, settingsInterface, u"SettingChanged"_s, this,
                            SLOT(settingChanged(QString, QString, QDBusVariant)));
        for (const Key& key : keys)
            read(*connection, QString::fromLatin1(key.group), QString::fromLatin1(key.name));
    });
}

void PortalAppearance::read(const QDBusConnection& connection, const QString& group,
                            const QString& key) {
    QDBusMessage message =
        QDBusMessage::createMethodCall(portalName, portalPath, settingsInterface, u"Read"_s);
    message << group << key;
    auto* const call = new QDBusPendingCallWatcher(connection.asyncCall(message), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, group, key] {
        call->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *call;
        if (!reply.isError())
            settingChanged(group, key, reply.value());
    });
}

void PortalAppearance::settingChanged(const QString& group, const QString& key,
                                      const QDBusVariant& value) {
    const Wishes before = wishes_;
    for (const Key& known : keys)
        if (group == QLatin1String(known.group) && key == QLatin1String(known.name))
            known.take(wishes_, unwrapped(value.variant()));
    if (wishes_ != before && changed_)
        changed_();
}

} // namespace quillon
