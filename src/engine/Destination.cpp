#include "engine/Destination.h"

namespace quillon {

Expected<std::string> destinationFolder(const std::optional<QString>& destination,
                                        const UserFolders& folders) {
    const QString text = destination.value_or(QString());
    if (text.isEmpty())
        return failure(ErrorKind::invalid, QStringLiteral("no folder set"));
    if (text.contains(QChar(u'\0')))
        return failure(ErrorKind::invalid, QStringLiteral("the folder's path has a NUL in it"));

    std::string path = text.toStdString();
    if (path == "~" || path.starts_with("~/"))
        path.replace(0, 1, folders.home);
    if (!path.starts_with('/'))
        return failure(ErrorKind::invalid, QStringLiteral("“%1” is not a full path").arg(text));
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

} // namespace quillon
