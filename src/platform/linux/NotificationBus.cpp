#include "platform/linux/NotificationBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QUuid>
#include <QVariantMap>

#include <utility>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto notificationsName = "org.freedesktop.Notifications"_L1;
constexpr auto objectPath = "/org/freedesktop/Notifications"_L1;
constexpr auto undoAction = "undo"_L1;
constexpr auto clickAction = "default"_L1;

// More can't be of use to anybody once a slow service wakes up.
constexpr qsizetype mostWaiting = 20;

QDBusMessage callOf(const QString& method) {
    return QDBusMessage::createMethodCall(notificationsName, objectPath, notificationsName, method);
}

QString escaped(QString text) {
    return text.replace(u'&', u"&amp;"_s).replace(u'<', u"&lt;"_s).replace(u'>', u"&gt;"_s);
}

} // namespace

NotificationBus::NotificationBus(QString address, Ended ended)
    : address_(std::move(address))
    , ended_(std::move(ended))
    , connectionName_(u"quillon-"_s + QUuid::createUuid().toString()) {}

NotificationBus::~NotificationBus() {
    disconnectFromBus();
}

void NotificationBus::show(const Request& request) {
    if (!connectToBus())
        return ended_(request.token, End::ignored, {});
    if (abilities_)
        return send(request);
    waiting_.append(request);
    if (waiting_.size() > mostWaiting)
        ended_(waiting_.takeFirst().token, End::ignored, {});
    if (!isAsking_)
        askForAbilities();
}

bool NotificationBus::connectToBus() {
    if (connection_ && connection_->isConnected())
        return true;
    disconnectFromBus();
    connection_ =
        std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(address_, connectionName_));
    if (!connection_->isConnected()) {
        disconnectFromBus();
        return false;
    }
    connection_->connect(notificationsName, objectPath, notificationsName, u"ActionInvoked"_s, this,
                         SLOT(actionInvoked(uint, QString)));
    connection_->connect(notificationsName, objectPath, notificationsName, u"NotificationClosed"_s,
                         this, SLOT(notificationClosed(uint, uint)));
    connection_->connect(notificationsName, objectPath, notificationsName, u"ActivationToken"_s,
                         this, SLOT(activationTokenCame(uint, QString)));
    watcher_ = std::make_unique<QDBusServiceWatcher>(notificationsName, *connection_,
                                                     QDBusServiceWatcher::WatchForOwnerChange);
    connect(watcher_.get(), &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString& before) {
                if (!before.isEmpty())
                    serviceGone();
            });
    return true;
}

void NotificationBus::disconnectFromBus() {
    if (!connection_)
        return;
    serviceGone();
    watcher_.reset();
    connection_.reset();
    QDBusConnection::disconnectFromBus(connectionName_);
}

void NotificationBus::askForAbilities() {
    isAsking_ = true;
    auto* const call =
        new QDBusPendingCallWatcher(connection_->asyncCall(callOf(u"GetCapabilities"_s)), this);
    connect(call, &QDBusPendingCallWatcher::finished, this,
            [this, call] { abilitiesArrived(*call); });
}

void NotificationBus::abilitiesArrived(QDBusPendingCallWatcher& call) {
    call.deleteLater();
    isAsking_ = false;
    const QDBusPendingReply<QStringList> reply = call;
    if (reply.isError())
        return dropWaiting();
    const QStringList names = reply.value();
    abilities_ = {.actions = names.contains(u"actions"_s),
                  .markup = names.contains(u"body-markup"_s)};
    for (const Request& request : std::exchange(waiting_, {}))
        send(request);
}

void NotificationBus::send(const Request& request) {
    QStringList actions;
    if (abilities_->actions && request.canBeClicked)
        actions << clickAction << u"Open Quillon"_s;
    if (abilities_->actions && request.offersUndo)
        actions << undoAction << u"Undo"_s;
    QDBusMessage message = callOf(u"Notify"_s);
    message << u"Quillon"_s << 0U << u"quillon"_s << request.title
            << (abilities_->markup ? escaped(request.body) : request.body) << actions
            << QVariantMap{{u"desktop-entry"_s, u"quillon"_s}} << -1;
    auto* const call = new QDBusPendingCallWatcher(connection_->asyncCall(message), this);
    connect(call, &QDBusPendingCallWatcher::finished, this,
            [this, call, isAnswered = !actions.isEmpty(), token = request.token] {
                sent(token, isAnswered, *call);
            });
}

void NotificationBus::sent(std::uint64_t token, bool isAnswered, QDBusPendingCallWatcher& call) {
    call.deleteLater();
    const QDBusPendingReply<uint> reply = call;
    if (reply.isError() || !isAnswered)
        return ended_(token, End::ignored, {});
    tokens_.insert(reply.value(), token);
}

void NotificationBus::actionInvoked(uint id, const QString& action) {
    if (action == undoAction)
        end(id, End::undo);
    else if (action == clickAction)
        end(id, End::clicked);
}

void NotificationBus::notificationClosed(uint id, uint) {
    end(id, End::ignored);
}

void NotificationBus::activationTokenCame(uint, const QString& activation) {
    activation_ = activation;
}

void NotificationBus::end(uint id, End end) {
    if (const auto token = tokens_.constFind(id); token != tokens_.constEnd())
        ended_(tokens_.take(id), end, std::exchange(activation_, {}));
}

/// What the service that is gone has shown is gone with it.
void NotificationBus::serviceGone() {
    abilities_.reset();
    for (const std::uint64_t token : std::exchange(tokens_, {}))
        ended_(token, End::ignored, {});
}

void NotificationBus::dropWaiting() {
    for (const Request& request : std::exchange(waiting_, {}))
        ended_(request.token, End::ignored, {});
}

} // namespace quillon
