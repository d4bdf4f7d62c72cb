#pragma once

#include "ui/review/RecipeMatches.h"

#include <cstdint>
#include <vector>

namespace quillon {

/// The files that one recipe would take.
struct CleanupGroup {
    std::vector<std::uint32_t> files; ///< in the order in which they are shown
    std::size_t ticked = 0;
    std::uint64_t size = 0;       ///< of all of them
    std::uint64_t tickedSize = 0; ///< of those that are ticked
};

/// What the groups are made from. Borrows all of it.
struct CleanupSource {
    const std::vector<ListedFile>& files;
    const std::vector<std::uint32_t>& order; ///< in which files are shown
    const std::vector<RecipeBits>& matches;  ///< by file
    const std::vector<bool>& unticked;       ///< by file
    std::uint8_t chosen = 0;                 ///< one bit a recipe
};

/// One group a recipe. A file that several chosen recipes match belongs to the first of them, as it
/// does in the run; a recipe that isn't chosen has what it would take if it were.
[[nodiscard]] std::vector<CleanupGroup> cleanupGroups(const CleanupSource& source,
                                                      std::size_t recipes);

} // namespace quillon
