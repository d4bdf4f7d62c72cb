#pragma once

#include "platform/FileSystem.h"

namespace quillon {

/// Lists a folder as FileSystem::list promises: one look at each file, relative to its folder.
[[nodiscard]] Expected<Listing> listFolder(const std::string& folder, const ListOptions& options);

} // namespace quillon
