#include "platform/linux/PortalRequest.h"

#include "platform/linux/PortalAddress.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QUuid>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

void PortalRequest::send(QDBusConnection connection, const Call& call, Answered answered,
                         std::function<void()> failed) {
    auto* const request = new PortalRequest(std::move(connection));
    request->answered_ = std::move(answered);
    request->failed_ = std::move(failed);
    const QString token = u"quillon"_s + QUuid::createUuid().toString(QUuid::Id128);
    const QString sender = request->connection_.baseService().mid(1).replace(u'.', u'_');
    // Before the call: the answer may come at once, and the portal may go at any moment.
    request->listenAt(portalPath + u"/request/"_s + sender + u'/' + token);
    const auto* const presence = new QDBusServiceWatcher(
        portalName, request->connection_, QDBusServiceWatcher::WatchForUnregistration, request);
    connect(presence, &QDBusServiceWatcher::serviceUnregistered, request, &PortalRequest::lose);

    QVariantMap options = call.options;
    options.insert(u"handle_token"_s, token);
    QDBusMessage message =
        QDBusMessage::createMethodCall(portalName, portalPath, call.interface, call.method);
    message.setArguments(call.arguments + QVariantList{options});
    auto* const watcher =
        new QDBusPendingCallWatcher(request->connection_.asyncCall(message), request);
    connect(watcher, &QDBusPendingCallWatcher::finished, request,
            [request, watcher] { request->handled(watcher->reply()); });
}

void PortalRequest::listenAt(const QString& path) {
    path_ = path;
    connection_.connect(portalName, path_, u"org.freedesktop.portal.Request"_s, u"Response"_s, this,
                        SLOT(respond(uint, QVariantMap)));
}

void PortalRequest::handled(const QDBusMessage& reply) {
    if (reply.type() == QDBusMessage::ErrorMessage) {
        deleteLater();
        if (const auto failed = std::exchange(failed_, {}))
            failed();
        return;
    }
    // An old portal names the request itself.
    const QString path = reply.arguments().value(0).value<QDBusObjectPath>().path();
    if (path != path_)
        listenAt(path);
    isTaken_ = true;
    if (isGone_)
        respond(2, {});
}

/// A dialogue goes with its portal, and there will be no answer. A call fails by itself.
void PortalRequest::lose() {
    isGone_ = true;
    if (isTaken_)
        respond(2, {});
}

void PortalRequest::respond(uint response, const QVariantMap& results) {
    deleteLater();
    failed_ = {};
    if (const auto answered = std::exchange(answered_, {}))
        answered(response == 0 ? std::optional(results) : std::nullopt);
}

} // namespace quillon
