#pragma once

#include <string>
#include <vector>

namespace quillon {

/// The folders in which LinuxTrash may have put a file from `folder`, whether they exist or not.
[[nodiscard]] std::vector<std::string> trashPlaces(const std::string& folder,
                                                   const std::string& homeTrash);

} // namespace quillon
