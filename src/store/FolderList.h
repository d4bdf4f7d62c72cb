#pragma once

#include "model/WatchedFolder.h"

#include <vector>

namespace quillon {

/// The folders as they are watched: all of them, or, while paused, none live.
[[nodiscard]] std::vector<WatchedFolder> effective(std::vector<WatchedFolder> folders, bool paused);

[[nodiscard]] WatchedFolder* findFolder(std::vector<WatchedFolder>& folders, const QUuid& folderID);

/// Paths are compared without trailing slashes and detours.
[[nodiscard]] const WatchedFolder* findFolderAt(const std::vector<WatchedFolder>& folders,
                                                const QString& path);

/// A folder for the path as it is when it has just been added.
[[nodiscard]] WatchedFolder newFolder(const QString& path);

} // namespace quillon
