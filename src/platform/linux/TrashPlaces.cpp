#include "platform/linux/TrashPlaces.h"

#include "platform/FileNames.h"
#include "platform/linux/Ancestry.h"

#include <unistd.h>

namespace quillon {

std::vector<std::string> trashPlaces(const std::string& folder, const std::string& homeTrash) {
    std::vector<std::string> trashes{homeTrash};
    if (const auto top = mountPointOf(folder)) {
        const std::string user = std::to_string(::getuid());
        trashes.push_back(joinPath(joinPath(*top, ".Trash"), user));
        trashes.push_back(joinPath(*top, ".Trash-" + user));
    }
    for (std::string& trash : trashes)
        trash = joinPath(trash, "files");
    return trashes;
}

} // namespace quillon
