#pragma once

#include "cli/Refusal.h"
#include "model/WatchedFolder.h"
#include "service/Services.h"

#include <string>
#include <vector>

namespace quillon {

/// A path of the command line, made absolute from where the command was given.
[[nodiscard]] std::string absolutePath(const std::string& path, const Console& console);

/// The watched folder that is meant by a path, links and ".." aside. A refusal names the nearest
/// watched one: `unreadable` when there is nothing at the path, otherwise `usage`.
[[nodiscard]] Chosen<WatchedFolder> watchedFolderAt(const std::string& path,
                                                    const std::vector<WatchedFolder>& folders,
                                                    const Console& console, Services& services);

/// The folder at a path, without rules and without an identity, be it watched or not. A refusal
/// when the path is not valid UTF-8.
[[nodiscard]] Chosen<WatchedFolder> plainFolderAt(const std::string& path, const Console& console,
                                                  Services& services);

} // namespace quillon
