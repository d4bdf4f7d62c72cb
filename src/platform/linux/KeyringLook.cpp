#include "platform/linux/KeyringLook.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QMap>
#include <QUuid>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto secretsName = "org.freedesktop.secrets"_L1;
constexpr auto servicePath = "/org/freedesktop/secrets"_L1;
constexpr auto serviceInterface = "org.freedesktop.Secret.Service"_L1;
constexpr auto collectionInterface = "org.freedesktop.Secret.Collection"_L1;
constexpr auto propertiesInterface = "org.freedesktop.DBus.Properties"_L1;

constexpr int answerPatienceMs = 5'000;

Error errorOf(const QDBusMessage& reply) {
    switch (QDBusError(reply).type()) {
    case QDBusError::ServiceUnknown:
    case QDBusError::Disconnected:
    case QDBusError::NoServer:
        return noKeyring();
    case QDBusError::AccessDenied:
        return refusingKeyring();
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        return silentKeyring();
    default:
        return reply.errorName().startsWith("org.freedesktop.DBus.Error.Spawn"_L1)
                   ? noKeyring()
                   : Error{ErrorKind::io, u"The keyring failed: %1"_s.arg(reply.errorMessage())};
    }
}

/// A connection of its own, ended with the object.
class Keyring {
public:
    explicit Keyring(const QString& busAddress)
        : name_(u"quillon-keyring-"_s + QUuid::createUuid().toString())
        , bus_(QDBusConnection::connectToBus(busAddress, name_)) {}
    ~Keyring() { QDBusConnection::disconnectFromBus(name_); }
    Keyring(const Keyring&) = delete;
    Keyring& operator=(const Keyring&) = delete;

    [[nodiscard]] bool isConnected() const { return bus_.isConnected(); }

    [[nodiscard]] Expected<QVariantList> call(const QString& path, const QString& interface,
                                              const QString& method,
                                              const QVariantList& arguments) const {
        QDBusMessage message = QDBusMessage::createMethodCall(secretsName, path, interface, method);
        message.setArguments(arguments);
        const QDBusMessage reply = bus_.call(message, QDBus::Block, answerPatienceMs);
        if (reply.type() == QDBusMessage::ReplyMessage)
            return reply.arguments();
        return std::unexpected(errorOf(reply));
    }

private:
    QString name_;
    QDBusConnection bus_;
};

QVariant attributes(const QString& server, const QString& account) {
    QDBusArgument texts;
    texts.beginMap(QMetaType::fromType<QString>(), QMetaType::fromType<QString>());
    for (const auto& [key, value] :
         {std::pair{u"server"_s, server}, std::pair{u"user"_s, account}}) {
        texts.beginMapEntry();
        texts << key << value;
        texts.endMapEntry();
    }
    texts.endMap();
    return QVariant::fromValue(texts);
}

/// How many there are in a list of objects.
qsizetype countOf(const QVariant& objects) {
    return qdbus_cast<QList<QDBusObjectPath>>(objects).size();
}

} // namespace

Expected<KeyringLook> lookAtKeyring(const QString& busAddress, const QString& server,
                                    const QString& account) {
    const Keyring keyring(busAddress);
    if (!keyring.isConnected())
        return std::unexpected(noKeyring());
    const auto found = keyring.call(servicePath, serviceInterface, u"SearchItems"_s,
                                    {attributes(server, account)});
    if (!found)
        return std::unexpected(found.error());
    KeyringLook look;
    look.isItLocked = countOf(found->value(0)) == 0 && countOf(found->value(1)) > 0;
    look.holdsIt = countOf(found->value(0)) > 0 || look.isItLocked;

    const auto alias = keyring.call(servicePath, serviceInterface, u"ReadAlias"_s, {u"default"_s});
    if (!alias)
        return std::unexpected(alias.error());
    const QString collection = alias->value(0).value<QDBusObjectPath>().path();
    look.hasDefault = collection.size() > 1;
    if (!look.hasDefault)
        return look;
    const auto locked = keyring.call(collection, propertiesInterface, u"Get"_s,
                                     {QString(collectionInterface), u"Locked"_s});
    if (!locked)
        return std::unexpected(locked.error());
    look.isLocked = locked->value(0).value<QDBusVariant>().variant().toBool();
    return look;
}

Error noKeyring() {
    return {ErrorKind::unsupported,
            u"There is no keyring in this session; install one, such as gnome-keyring, and log in "
            "again"_s};
}

Error silentKeyring() {
    return {ErrorKind::timedOut, u"The keyring doesn't answer; log out and in again, or restart "
                                 "it"_s};
}

Error refusingKeyring() {
    return {ErrorKind::permissionDenied,
            u"The keyring refuses access; allow Quillon to use it, and try again"_s};
}

} // namespace quillon
