#pragma once

#include <cstdint>
#include <string>

namespace quillon {

/// A number that changes when something in the visible tree of the folder does: a name, or the size
/// or date of a file. Links are not followed, but for the root; 0 when there is no folder.
[[nodiscard]] std::uint64_t folderSnapshot(const std::string& path);

} // namespace quillon
