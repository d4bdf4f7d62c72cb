#include "platform/linux/Ancestry.h"

#include "platform/FileNames.h"
#include "platform/linux/Descriptor.h"
#include "platform/linux/SystemError.h"
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
    struct statx here = {};
    if (const int error = lookAt(AT_FDCWD, top.c_str(), here); error != 0) {
        return systemFailure(error);
    }
    while (top != "/" && (here.stx_attributes & STATX_ATTR_MOUNT_ROOT) == 0) {
        std::string above(parentPath(top));
        struct statx next = {};
        if (const int error = lookAt(AT_FDCWD, above.c_str(), next); error != 0) {
            return systemFailure(error);
        }
        if (toFileStatus(next).device != toFileStatus(here).device) {
            break;
        }
        top = std::move(above);
        here = next;
    }
    return top;
}

} // namespace quillon
