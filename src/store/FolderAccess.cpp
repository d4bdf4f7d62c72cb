#include "store/FolderAccess.h"

namespace quillon {

FolderAccess probeAccess(const FileSystem& fileSystem, const std::string& path) {
    const Expected<Listing> listing = fileSystem.list(path, {});
    if (listing)
        return FolderAccess::ok;
    switch (listing.error().kind) {
    case ErrorKind::notFound:
    case ErrorKind::wrongType:
        return FolderAccess::missing;
    default:
        return FolderAccess::denied;
    }
}

} // namespace quillon
