#include "platform/linux/LinuxStorage.h"

#include "platform/linux/DurableFile.h"
#include "platform/linux/FolderReader.h"
#include "platform/linux/FreeName.h"
#include "platform/linux/LinuxAppendFile.h"
#include "platform/linux/LinuxFileLock.h"
#include "platform/linux/Removal.h"
#include "platform/linux/SystemError.h"
#include "platform/linux/TemporaryNames.h"

#include <fcntl.h>

namespace quillon {

Expected<QByteArray> LinuxStorage::readWhole(const std::string& path,
                                             std::uint64_t maxBytes) const {
    return readWholeFile(path, maxBytes);
}

Expected<void> LinuxStorage::writeDurably(const std::string& path, const QByteArray& bytes) {
    return writeFileDurably(path, bytes);
}

Expected<void> LinuxStorage::writeNewDurably(const std::string& path, const QByteArray& bytes) {
    return writeNewFileDurably(path, bytes);
}

Expected<std::unique_ptr<AppendFile>> LinuxStorage::openAppend(const std::string& path) {
    return LinuxAppendFile::open(path);
}

Expected<std::unique_ptr<FileLock>> LinuxStorage::tryLock(const std::string& path) {
    return LinuxFileLock::take(path);
}

Expected<void> LinuxStorage::remove(const std::string& path) {
    return ::unlink(path.c_str()) == 0 || errno == ENOENT ? Expected<void>{} : systemFailure(errno);
}

Expected<std::string> LinuxStorage::keepAside(const std::string& path, const std::string& wanted) {
    Expected<FreeName> kept = claimFreeName(wanted, [&path](const std::string& name) {
        return renameWithoutReplacing(AT_FDCWD, path, AT_FDCWD, name);
    });
    if (!kept) {
        return std::unexpected(kept.error());
    }
    if (Expected<void> synced = syncFolderOf(kept->name); !synced) {
        return std::unexpected(synced.error());
    }
    return std::move(kept->name);
}

Expected<unsigned> LinuxStorage::removeTemporaries(const std::string& folder,
                                                   const std::string& tag) {
    Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!opened.isOpen()) {
        return errno == ENOENT ? Expected<unsigned>(0U) : systemFailure(errno);
    }
    Expected<FolderReader> reader = FolderReader::open(std::move(opened));
    if (!reader) {
        return std::unexpected(reader.error());
    }
    std::vector<std::string> leftovers;
    while (const dirent* const entry = reader->next()) {
        if (TemporaryNames::isTemporaryOf(entry->d_name, tag)) {
            leftovers.emplace_back(entry->d_name);
        }
    }
    for (const std::string& name : leftovers) {
        if (Expected<void> removed = removeTemporary(reader->folder(), name); !removed) {
            return std::unexpected(removed.error());
        }
    }
    return static_cast<unsigned>(leftovers.size());
}

} // namespace quillon
