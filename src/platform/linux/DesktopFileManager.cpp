#include "platform/linux/DesktopFileManager.h"

#include "platform/FileNames.h"
#include "platform/linux/Descriptor.h"
#include "platform/linux/PortalRequest.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QProcess>

#include <fcntl.h>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto openerInterface = "org.freedesktop.portal.OpenURI"_L1;

/// Any bytes may stand in a path.
QString fileAddress(const std::string& path) {
    const QByteArray bytes(path.data(), qsizetype(path.size()));
    return u"file://"_s + QString::fromLatin1(bytes.toPercentEncoding("/"));
}

} // namespace

void DesktopFileManager::startDetached(const QString& program, const QStringList& arguments) {
    QProcess::startDetached(program, arguments);
}

void DesktopFileManager::reveal(const std::string& path) {
    bus_.whenConnected([this, path](std::optional<QDBusConnection> connection) {
        if (!connection)
            return openFolderOf(path, {});
        QDBusMessage message = QDBusMessage::createMethodCall(
            u"org.freedesktop.FileManager1"_s, u"/org/freedesktop/FileManager1"_s,
            u"org.freedesktop.FileManager1"_s, u"ShowItems"_s);
        message << QStringList{fileAddress(path)} << QString();
        auto* const call = new QDBusPendingCallWatcher(connection->asyncCall(message));
        QObject::connect(call, &QDBusPendingCallWatcher::finished, call,
                         [this, call, path, connection] {
                             call->deleteLater();
                             if (call->isError())
                                 openFolderOf(path, connection);
                         });
    });
}

void DesktopFileManager::openFolderOf(const std::string& path,
                                      const std::optional<QDBusConnection>& connection) {
    const auto otherwise = [this, path] {
        start_(u"xdg-open"_s, {QString::fromUtf8(parentPath(path))});
    };
    const Descriptor file(::open(path.c_str(), O_PATH | O_CLOEXEC));
    if (!connection || !file.isOpen())
        return otherwise();
    PortalRequest::send(
        *connection,
        {.interface = openerInterface,
         .method = u"OpenDirectory"_s,
         .arguments = {QString(), QVariant::fromValue(QDBusUnixFileDescriptor(file.get()))}},
        [](const std::optional<QVariantMap>&) {}, otherwise);
}

void DesktopFileManager::openAddress(const QString& address) {
    const auto otherwise = [this, address] { start_(u"xdg-open"_s, {address}); };
    bus_.whenConnected([address, otherwise](std::optional<QDBusConnection> connection) {
        if (!connection)
            return otherwise();
        PortalRequest::send(
            *connection,
            {.interface = openerInterface,
             .method = u"OpenURI"_s,
             .arguments = {QString(), address}},
            [](const std::optional<QVariantMap>&) {}, otherwise);
    });
}

} // namespace quillon
