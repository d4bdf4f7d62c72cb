#include "engine/actions/Placing.h"

#include "engine/Destination.h"
#include "platform/FileNames.h"

namespace quillon {

namespace {

bool isOrHolds(const ActionContext& context, const std::string& folder) {
    if (context.status.type != FileType::directory)
        return false;
    const FileSystem& fileSystem = context.platform.fileSystem;
    const std::string outer = fileSystem.resolved(context.path) + '/';
    return (folder + '/').starts_with(context.path + '/') ||
           (fileSystem.resolved(folder) + '/').starts_with(outer);
}

} // namespace

Expected<Placement> placeInto(const ActionContext& context, const std::string& folder,
                              Transfer transfer) {
    FileSystem& fileSystem = context.platform.fileSystem;
    if (folder == parentPath(context.path) || isOrHolds(context, folder))
        return Placement{.path = context.path, .done = false, .losses = {}};

    const std::string wanted = joinPath(folder, lastComponent(context.path));
    const auto place = [&] {
        return transfer == Transfer::move ? fileSystem.move(context.path, wanted)
                                          : fileSystem.copy(context.path, wanted);
    };
    // The folder is there for all files but the first, so it is asked for only when it is missed.
    Expected<Placement> placed = place();
    const bool missesFolder = !placed && placed.error().kind == ErrorKind::notFound &&
                              fileSystem.status(context.path).has_value();
    if (!missesFolder)
        return placed;
    if (const Expected<void> made = fileSystem.makeFolders(folder); !made)
        return std::unexpected(made.error());
    return place();
}

Expected<Placement> placeAtDestination(const RuleAction& action, const ActionContext& context,
                                       Transfer transfer) {
    const Expected<std::string> folder =
        destinationFolder(action.destination, context.platform.folders);
    if (!folder)
        return std::unexpected(folder.error());
    return placeInto(context, *folder, transfer);
}

} // namespace quillon
