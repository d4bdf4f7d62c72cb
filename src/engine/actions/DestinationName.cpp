#include "engine/actions/DestinationName.h"

#include "engine/Destination.h"
#include "engine/actions/Outcome.h"
#include "platform/FileNames.h"
#include "platform/FileSystem.h"

#include <filesystem>

namespace quillon {

QString destinationName(const RuleAction& action, const ActionContext& context) {
    const QString text = action.destination.value_or(QString());
    if (text.isEmpty())
        return QStringLiteral("(no folder set)");
    const auto folder = destinationFolder(action.destination, context.platform.folders);
    if (!folder)
        return nameOf(text.toStdString());
    if (lastComponent(*folder) != "..")
        return nameOf(*folder);
    // A folder that is not there yet is read as it is written.
    const std::filesystem::path resolved = context.platform.fileSystem.resolved(*folder);
    return nameOf(resolved.lexically_normal().string());
}

} // namespace quillon
