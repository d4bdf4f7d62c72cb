#include "engine/Destination.h"

#include "platform/FileNames.h"

#include <ranges>

namespace quillon {

namespace {

/// Without "." and doubled slashes. ".." stays: what it leads to after a link, only the disk knows.
std::string withoutIdleSteps(std::string_view path) {
    std::string kept = "/";
    for (const auto step : path | std::views::split('/')) {
        const std::string_view name(step.begin(), step.end());
        if (!name.empty() && name != ".")
            kept = joinPath(kept, name);
    }
    return kept;
}

} // namespace

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
    return withoutIdleSteps(path);
}

} // namespace quillon
