#include "cli/FolderPlace.h"

#include "cli/NamedFolder.h"
#include "cli/OpenStore.h"
#include "model/Uuid.h"

namespace quillon {

std::expected<FolderPlace, ExitCode> folderPlaceAt(const std::string& path, const Console& console,
                                                   Services& services) {
    const auto view = viewStoreFor(console, services);
    if (!view)
        return std::unexpected(view.error());
    const PersistedState& state = view->state;
    const auto watched = watchedFolderAt(path, state.folders, console, services);
    const auto folder = watched ? watched : plainFolderAt(path, console, services);
    if (!folder)
        return std::unexpected(sayRefusal(folder.error(), console));
    FolderPlace place{.folder = *folder,
                      .otherFolders = state.folders,
                      .handled = state.processedFiles.value(uuidText(folder->id)),
                      .isWatched = watched.has_value()};
    std::erase_if(place.otherFolders,
                  [&](const WatchedFolder& other) { return other.id == folder->id; });
    return place;
}

} // namespace quillon
