#include "platform/linux/SystemStatus.h"

#include "platform/linux/SystemError.h"

#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <sys/sysmacros.h>

namespace quillon {

namespace {

constexpr unsigned wantedFields = STATX_BASIC_STATS | STATX_BTIME;
constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;

/// Dates that a Timestamp can't hold (before 1677, after 2262) become the nearest that it can.
Timestamp toTimestamp(const struct statx_timestamp& time) {
    constexpr std::int64_t most =
        std::numeric_limits<std::int64_t>::max() / nanosecondsPerSecond - 1;
    const std::int64_t seconds = std::clamp<std::int64_t>(time.tv_sec, -most, most);
    return Timestamp{
        std::chrono::nanoseconds{seconds * nanosecondsPerSecond + std::int64_t{time.tv_nsec}}};
}

FileType toFileType(std::uint16_t mode) {
    switch (mode & S_IFMT) {
    case S_IFREG:
        return FileType::regular;
    case S_IFDIR:
        return FileType::directory;
    case S_IFLNK:
        return FileType::symbolicLink;
    default:
        return FileType::special;
    }
}

} // namespace

int lookAt(int folder, const char* name, struct statx& found) {
    return ::statx(folder, name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, wantedFields, &found) == 0
               ? 0
               : errno;
}

int lookAt(int descriptor, struct statx& found) {
    return ::statx(descriptor, "", AT_EMPTY_PATH, wantedFields, &found) == 0 ? 0 : errno;
}

FileStatus toFileStatus(const struct statx& found) {
    FileStatus status;
    status.device = ::makedev(found.stx_dev_major, found.stx_dev_minor);
    status.inode = found.stx_ino;
    status.type = toFileType(found.stx_mode);
    status.size = status.type == FileType::directory ? 0 : found.stx_size;
    status.modified = toTimestamp(found.stx_mtime);
    status.accessed = toTimestamp(found.stx_atime);
    status.changed = toTimestamp(found.stx_ctime);
    if ((found.stx_mask & STATX_BTIME) != 0) {
        status.created = toTimestamp(found.stx_btime);
    }
    return status;
}

Expected<FileStatus> statusAt(int folder, const std::string& name) {
    struct statx found = {};
    if (const int error = lookAt(folder, name.c_str(), found); error != 0) {
        return systemFailure(error);
    }
    return toFileStatus(found);
}

Expected<FileStatus> statusOf(int descriptor) {
    struct statx found = {};
    if (const int error = lookAt(descriptor, found); error != 0) {
        return systemFailure(error);
    }
    return toFileStatus(found);
}

bool isUnchanged(const FileStatus& before, const FileStatus& now) {
    return hasSameContents(before, now) && before.changed == now.changed;
}

bool hasSameContents(const FileStatus& before, const FileStatus& now) {
    return before.isSameFileAs(now) && before.type == now.type && before.size == now.size &&
           before.modified == now.modified;
}

} // namespace quillon
