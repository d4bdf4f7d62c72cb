#include "platform/linux/StatusNotifierTray.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto watcherName = "org.kde.StatusNotifierWatcher"_L1;
constexpr auto watcherPath = "/StatusNotifierWatcher"_L1;
constexpr int hostPatienceMs = 3000;

} // namespace

void StatusNotifierTray::start(const TrayLook& look, std::vector<TrayMenuItem> menu,
                               Handlers handlers) {
    handlers_ = std::move(handlers);
    item_.setLook(look);
    item_.onActivated = handlers_.activated;
    menu_.setRightToLeft(look.isRightToLeft);
    menu_.setItems(std::move(menu));
    bus_.whenConnected([this](std::optional<QDBusConnection> connection) {
        if (connection)
            connectTo(std::move(*connection));
        else
            setPlace(Place::nowhere);
    });
}

void StatusNotifierTray::connectTo(QDBusConnection connection) {
    connection_ = std::move(connection);
    StatusNotifierObject::registerTypes();
    MenuObject::registerTypes();
    constexpr auto all = QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals |
                         QDBusConnection::ExportAllProperties;
    connection_->registerObject(QString::fromLatin1(StatusNotifierObject::path), &item_, all);
    connection_->registerObject(QString::fromLatin1(StatusNotifierObject::menuPath), &menu_, all);
    watching_ = std::make_unique<QDBusServiceWatcher>(watcherName, *connection_,
                                                      QDBusServiceWatcher::WatchForOwnerChange);
    connect(watching_.get(), &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& now) {
                if (now.isEmpty())
                    setPlace(Place::nowhere);
                else
                    registerItem();
            });
    for (const QString& signal :
         {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s})
        connection_->connect(watcherName, watcherPath, watcherName, signal, this,
                             SLOT(askForHost()));
    registerItem();
}

void StatusNotifierTray::registerItem() {
    QDBusMessage message = QDBusMessage::createMethodCall(watcherName, watcherPath, watcherName,
                                                          u"RegisterStatusNotifierItem"_s);
    message << connection_->baseService();
    auto* const call =
        new QDBusPendingCallWatcher(connection_->asyncCall(message, hostPatienceMs), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        if (call->isError())
            setPlace(Place::nowhere);
        else
            askForHost();
    });
}

void StatusNotifierTray::askForHost() {
    QDBusMessage message = QDBusMessage::createMethodCall(
        watcherName, watcherPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    message << QString(watcherName) << u"IsStatusNotifierHostRegistered"_s;
    auto* const call =
        new QDBusPendingCallWatcher(connection_->asyncCall(message, hostPatienceMs), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *call;
        const bool isHosted = !reply.isError() && reply.value().variant().toBool();
        setPlace(isHosted ? Place::shown : Place::nowhere);
    });
}

void StatusNotifierTray::setPlace(Place place) {
    if (place == place_)
        return;
    place_ = place;
    if (handlers_.placeChanged)
        handlers_.placeChanged();
}

} // namespace quillon
