#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>
#include <QVariantMap>

#include <functional>

namespace quillon {

/// One request to the desktop portal, whose answer comes as a signal when the user has made up
/// their mind. Goes by itself after the answer.
class PortalRequest final : public QObject {
    Q_OBJECT

public:
    /// Nothing when the user thinks better of it.
    using Answered = std::function<void(std::optional<QVariantMap> results)>;

    struct Call {
        QString interface; ///< of the portal: "org.freedesktop.portal.FileChooser"
        QString method;
        QVariantList arguments;   ///< those before the options
        QVariantMap options = {}; ///< without the token of the request
    };

    /// One of `answered` and `failed` is called, once; `failed` when there is no such portal.
    static void send(QDBusConnection connection, const Call& call, Answered answered,
                     std::function<void()> failed);

private Q_SLOTS:
    void respond(uint response, const QVariantMap& results);

private:
    explicit PortalRequest(QDBusConnection connection) : connection_(std::move(connection)) {}

    void listenAt(const QString& path);
    void handled(const QDBusMessage& reply);
    void lose();

    QDBusConnection connection_;
    QString path_;         ///< where the answer comes from
    bool isTaken_ = false; ///< the portal has the request
    bool isGone_ = false;
    Answered answered_;
    std::function<void()> failed_;
};

} // namespace quillon
