#include "platform/linux/Ancestry.h"

#include "platform/FileNames.h"
#include "platform/linux/Descriptor.h"
#include "platform/linux/SystemStatus.h"

#include <fcntl.h>

namespace quillon {

bool isWithin(const std::string& path, const FileStatus& folder) {
    constexpr int flags = O_PATH | O_DIRECTORY | O_CLOEXEC;
    Descriptor here(::open(path.c_str(), flags));
    Expected<FileStatus> status = statusOf(here.get());
    while (status) {
        if (status->isSameFileAs(folder)) {
            return true;
        }
        Descriptor above(::openat(here.get(), "..", flags));
        const Expected<FileStatus> next = statusOf(above.get());
        if (!next || next->isSameFileAs(*status)) {
            return false;
        }
        here = std::move(above);
        status = next;
    }
    return false;
}

Expected<std::string> mountPointOf(const std::string& path) {
    std::string top = path;
    const Expected<FileStatus> start = statusAt(AT_FDCWD, path);
    if (!start) {
        return std::unexpected(start.error());
    }
    while (top != "/") {
        std::string above(parentPath(top));
        const Expected<FileStatus> status = statusAt(AT_FDCWD, above);
        if (!status) {
            return std::unexpected(status.error());
        }
        if (status->device != start->device) {
            break;
        }
        top = std::move(above);
    }
    return top;
}

} // namespace quillon
