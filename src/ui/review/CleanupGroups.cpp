#include "ui/review/CleanupGroups.h"

namespace quillon {

std::vector<CleanupGroup> cleanupGroups(const CleanupSource& source, std::size_t recipes) {
    std::vector<CleanupGroup> groups(recipes);
    for (const std::uint32_t file : source.order) {
        const RecipeBits bits = source.matches[file];
        for (std::size_t r = 0; r < recipes; ++r) {
            if ((bits.matching >> r & 1) == 0)
                continue;
            const std::uint64_t size = source.files[file].status.size;
            if ((bits.idle >> r & 1) == 0) {
                CleanupGroup& group = groups[r];
                group.files.push_back(file);
                group.size += size;
                if (!source.unticked[file]) {
                    ++group.ticked;
                    group.tickedSize += size;
                }
            }
            if ((source.chosen >> r & 1) != 0)
                break;
        }
    }
    return groups;
}

} // namespace quillon
