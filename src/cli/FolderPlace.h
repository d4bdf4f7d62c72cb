#pragma once

#include "model/WatchedFolder.h"
#include "service/Console.h"
#include "service/ExitCode.h"
#include "service/Services.h"

#include <QSet>

#include <expected>
#include <string>
#include <vector>

namespace quillon {

/// A folder that a command is about, and what the store knows beside it.
struct FolderPlace {
    WatchedFolder folder = {}; ///< without rules and without an identity when it is not watched
    std::vector<WatchedFolder> otherFolders = {}; ///< the watched ones
    QSet<QString> handled = {};                   ///< the keys of its files that runs have seen
    bool isWatched = false;
};

/// The folder at a path of the command line, watched or not. Says why when there is none, and what
/// was wrong with the store.
[[nodiscard]] std::expected<FolderPlace, ExitCode>
folderPlaceAt(const std::string& path, const Console& console, Services& services);

} // namespace quillon
