#include "platform/linux/LinuxAppendFile.h"

#include "platform/linux/DurableFile.h"
#include "platform/linux/FileContents.h"
#include "platform/linux/SystemError.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace quillon {

Expected<std::unique_ptr<AppendFile>> LinuxAppendFile::open(const std::string& path) {
    constexpr int flags = O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    Descriptor file(::open(path.c_str(), flags, S_IRUSR | S_IWUSR));
    struct stat found = {};
    if (!file.isOpen() || ::fstat(file.get(), &found) != 0) {
        return systemFailure(errno);
    }
    if (!S_ISREG(found.st_mode)) {
        return failure(ErrorKind::wrongType, QStringLiteral("it is not a regular file"));
    }
    if (Expected<void> synced = syncFolderOf(path); !synced) {
        return std::unexpected(synced.error());
    }
    return std::unique_ptr<AppendFile>(new LinuxAppendFile(std::move(file), found.st_size));
}

Expected<void> LinuxAppendFile::append(const QByteArray& bytes) {
    if (isTorn_) {
        if (Expected<void> cut = cutTo(size_); !cut) {
            return cut;
        }
    }
    const auto length = static_cast<std::size_t>(bytes.size());
    if (const int error = writeAll(file_.get(), bytes.constData(), length); error != 0) {
        isTorn_ = true;
        (void)cutTo(size_); // tried again before the next append
        return systemFailure(error);
    }
    size_ += static_cast<off_t>(length);
    return {};
}

Expected<void> LinuxAppendFile::sync() {
    return ::fdatasync(file_.get()) == 0 ? Expected<void>{} : systemFailure(errno);
}

Expected<void> LinuxAppendFile::clear() {
    Expected<void> cut = cutTo(0);
    return cut ? sync() : cut;
}

Expected<void> LinuxAppendFile::cutTo(off_t size) {
    if (::ftruncate(file_.get(), size) != 0) {
        return systemFailure(errno);
    }
    size_ = size;
    isTorn_ = false;
    return {};
}

} // namespace quillon
