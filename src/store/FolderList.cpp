#include "store/FolderList.h"

#include <QDir>

#include <algorithm>

namespace quillon {

std::vector<WatchedFolder> effective(std::vector<WatchedFolder> folders, bool paused) {
    if (paused)
        for (WatchedFolder& folder : folders)
            folder.isWatching = false;
    return folders;
}

WatchedFolder* findFolder(std::vector<WatchedFolder>& folders, const QUuid& folderID) {
    const auto found = std::ranges::find(folders, folderID, &WatchedFolder::id);
    return found == folders.end() ? nullptr : &*found;
}

const WatchedFolder* findFolderAt(const std::vector<WatchedFolder>& folders, const QString& path) {
    const QString clean = QDir::cleanPath(path);
    const auto found = std::ranges::find_if(folders, [&](const WatchedFolder& folder) {
        return QDir::cleanPath(folder.path) == clean;
    });
    return found == folders.end() ? nullptr : &*found;
}

WatchedFolder newFolder(const QString& path) {
    WatchedFolder folder;
    folder.path = QDir::cleanPath(path);
    folder.skipOnlineOnly = isCloudPath(folder.path);
    return folder;
}

} // namespace quillon
