#include "platform/linux/PortalFileChooser.h"

#include <QUrl>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// As the portal takes a path: its bytes with a zero after them.
QVariantMap startingAt(const std::string& folder) {
    if (folder.empty())
        return {};
    return {
        {u"current_folder"_s, QByteArray(folder.data(), qsizetype(folder.size())).append('\0')}};
}

std::optional<std::string> chosenPath(const QVariantMap& results) {
    const QUrl url(results.value(u"uris"_s).toStringList().value(0));
    if (!url.isLocalFile())
        return std::nullopt;
    // Any bytes may stand in a path.
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
}

} // namespace

void PortalFileChooser::chooseFolder(const QString& title, const std::string& start,
                                     Chosen chosen) {
    QVariantMap options = startingAt(start);
    options.insert(u"directory"_s, true);
    ask(u"OpenFile"_s, title, options, chosen,
        [=, this] { fallback_.chooseFolder(title, start, chosen); });
}

void PortalFileChooser::chooseFile(const QString& title, const std::string& start, Chosen chosen) {
    ask(u"OpenFile"_s, title, startingAt(start), chosen,
        [=, this] { fallback_.chooseFile(title, start, chosen); });
}

void PortalFileChooser::chooseNewFile(const QString& title, const QString& suggestedName,
                                      Chosen chosen) {
    ask(u"SaveFile"_s, title, {{u"current_name"_s, suggestedName}}, chosen,
        [=, this] { fallback_.chooseNewFile(title, suggestedName, chosen); });
}

void PortalFileChooser::ask(const QString& method, const QString& title, const QVariantMap& options,
                            const Chosen& chosen, const std::function<void()>& otherwise) {
    bus_.whenConnected([=, this](std::optional<QDBusConnection> connection) {
        if (!connection)
            return otherwise();
        PortalRequest::send(
            *connection,
            {.interface = u"org.freedesktop.portal.FileChooser"_s,
             .method = method,
             .arguments = {parentWindow_(), title},
             .options = options},
            [chosen](const std::optional<QVariantMap>& results) {
                chosen(results ? chosenPath(*results) : std::nullopt);
            },
            otherwise);
    });
}

} // namespace quillon
