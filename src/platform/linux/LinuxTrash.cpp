#include "platform/linux/LinuxTrash.h"

#include "platform/FileNames.h"
#include "platform/linux/Ancestry.h"
#include "platform/linux/SystemError.h"
#include "platform/linux/SystemStatus.h"
#include "platform/linux/TrashFolder.h"

#include <fcntl.h>
#include <unistd.h>

namespace quillon {

namespace {

/// What is to be thrown away, its folder held open.
struct Discard {
    Descriptor folder;
    std::string folderPath; ///< without links
    std::string name;
    FileStatus status;

    [[nodiscard]] std::string path() const { return joinPath(folderPath, name); }
};

Expected<Discard> openDiscard(const FileSystem& fileSystem, const std::string& path) {
    Discard discard;
    discard.folderPath = fileSystem.resolved(std::string(parentPath(path)));
    discard.name = lastComponent(path);
    discard.folder =
        Descriptor(::open(discard.folderPath.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!discard.folder.isOpen()) {
        return systemFailure(errno);
    }
    const Expected<FileStatus> status = statusAt(discard.folder.get(), discard.name);
    if (!status) {
        return std::unexpected(status.error());
    }
    discard.status = *status;
    if (status->type == FileType::special) {
        return failure(ErrorKind::wrongType, QStringLiteral("it is a pipe, socket or device"));
    }
    return discard;
}

/// The file system that `path` is on, or will be on once it is made.
Expected<std::uint64_t> deviceOf(const std::string& path) {
    std::string existing = path;
    Expected<FileStatus> status = statusAt(AT_FDCWD, existing);
    while (!status && status.error().kind == ErrorKind::notFound && existing != "/") {
        existing = parentPath(existing);
        status = statusAt(AT_FDCWD, existing);
    }
    if (!status) {
        return std::unexpected(status.error());
    }
    return status->device;
}

Expected<std::string> putInTopTrash(const Discard& discard) {
    const Expected<std::string> top = mountPointOf(discard.folderPath);
    if (!top) {
        return std::unexpected(top.error());
    }
    Expected<TrashFolder> trash = TrashFolder::openTop(*top);
    if (!trash) {
        return std::unexpected(trash.error());
    }
    const std::size_t below = *top == "/" ? 1 : top->size() + 1;
    return trash->put(discard.folder.get(), discard.name, discard.path().substr(below));
}

Expected<std::string> putInHomeTrash(const Discard& discard, const std::string& homeTrash) {
    Expected<TrashFolder> trash = TrashFolder::openHome(homeTrash);
    if (!trash) {
        return std::unexpected(trash.error());
    }
    return trash->put(discard.folder.get(), discard.name, discard.path());
}

} // namespace

LinuxTrash::LinuxTrash(FileSystem& fileSystem, std::string homeTrash)
    : fileSystem_(fileSystem), homeTrash_(std::move(homeTrash)) {}

Expected<std::string> LinuxTrash::put(const std::string& path) {
    const Expected<Discard> discard = openDiscard(fileSystem_, path);
    if (!discard) {
        return std::unexpected(discard.error());
    }
    const Expected<std::uint64_t> home = deviceOf(fileSystem_.resolved(homeTrash_));
    if (!home) {
        return std::unexpected(home.error());
    }
    if (discard->status.type == FileType::directory && isWithin(homeTrash_, discard->status)) {
        return failure(ErrorKind::invalid, QStringLiteral("the trash itself is in that folder"));
    }
    Expected<std::string> trashed = discard->status.device == *home
                                        ? putInHomeTrash(*discard, homeTrash_)
                                        : putInTopTrash(*discard);
    // A disk can be mounted twice: only the trash of this mount can take it without copying.
    if (!trashed && trashed.error().kind == ErrorKind::unsupported) {
        trashed = putInTopTrash(*discard);
    }
    return trashed;
}

Expected<Placement> LinuxTrash::restore(const std::string& trashedPath, const std::string& wanted) {
    if (const Expected<FileStatus> status = fileSystem_.status(trashedPath); !status) {
        return std::unexpected(status.error());
    }
    if (Expected<void> made = fileSystem_.makeFolders(std::string(parentPath(wanted))); !made) {
        return std::unexpected(made.error());
    }
    Expected<Placement> placed = fileSystem_.move(trashedPath, wanted);
    const std::string record = trashRecordOf(trashedPath);
    if (placed && placed->done && !record.empty()) {
        // The file is back. A record that stays behind names nothing, and every trash ignores it.
        (void)::unlink(record.c_str());
    }
    return placed;
}

} // namespace quillon
