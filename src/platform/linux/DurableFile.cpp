#include "platform/linux/DurableFile.h"

#include "platform/FileNames.h"
#include "platform/linux/Descriptor.h"
#include "platform/linux/FileContents.h"
#include "platform/linux/FreeName.h"
#include "platform/linux/SystemError.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>

namespace quillon {

namespace {

Expected<void> checkRegular(const struct stat& found) {
    if (S_ISREG(found.st_mode)) {
        return {};
    }
    return failure(ErrorKind::wrongType, S_ISDIR(found.st_mode)
                                             ? QStringLiteral("it is a folder, not a file")
                                             : QStringLiteral("it is not a regular file"));
}

/// Opens a regular file. Looks before it opens, because opening alone can set a device going.
Expected<Descriptor> openRegular(const std::string& path) {
    struct stat found = {};
    if (::stat(path.c_str(), &found) != 0) {
        return systemFailure(errno);
    }
    if (const Expected<void> checked = checkRegular(found); !checked) {
        return std::unexpected(checked.error());
    }
    Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.isOpen() || ::fstat(file.get(), &found) != 0) {
        return systemFailure(errno);
    }
    if (const Expected<void> checked = checkRegular(found); !checked) {
        return std::unexpected(checked.error());
    }
    return file;
}

/// The path itself, or what the link there leads to.
Expected<std::string> throughLinks(const std::string& path) {
    struct stat found = {};
    if (::lstat(path.c_str(), &found) != 0 || !S_ISLNK(found.st_mode)) {
        return path;
    }
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr),
                                                           &std::free);
    if (real == nullptr) {
        return systemFailure(errno);
    }
    return std::string(real.get());
}

/// A new empty file beside `path`, with its name in `name`.
Expected<Descriptor> makeTemporary(const std::string& path, std::string& name) {
    static std::atomic<unsigned> counter = 0;
    for (;;) {
        name = joinPath(parentPath(path), ".quillon-own-" + std::to_string(::getpid()) +
                                              std::to_string(++counter) + ".part");
        constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        Descriptor file(::open(name.c_str(), flags, S_IRUSR | S_IWUSR));
        if (file.isOpen()) {
            return file;
        }
        if (errno != EEXIST) {
            return systemFailure(errno);
        }
    }
}

Expected<void> fill(int file, const QByteArray& bytes) {
    const auto size = static_cast<std::size_t>(bytes.size());
    if (const int error = writeAll(file, bytes.constData(), size); error != 0) {
        return systemFailure(error);
    }
    return ::fsync(file) == 0 ? Expected<void>{} : systemFailure(errno);
}

/// Writes a hidden file beside `target` that `rename` then gives its name.
Expected<void> writeThenRename(const std::string& target, const QByteArray& bytes,
                               Expected<void> (*rename)(const std::string& from,
                                                        const std::string& to)) {
    std::string temporary;
    const Expected<Descriptor> file = makeTemporary(target, temporary);
    if (!file) {
        return std::unexpected(file.error());
    }
    Expected<void> written = fill(file->get(), bytes);
    if (written) {
        written = rename(temporary, target);
    }
    if (!written) {
        (void)::unlink(temporary.c_str()); // hidden and ours: at worst it stays
        return written;
    }
    return syncFolderOf(target);
}

Expected<void> renameReplacing(const std::string& from, const std::string& to) {
    return ::rename(from.c_str(), to.c_str()) == 0 ? Expected<void>{} : systemFailure(errno);
}

Expected<void> renameToNew(const std::string& from, const std::string& to) {
    const int error = renameWithoutReplacing(AT_FDCWD, from, AT_FDCWD, to);
    return error == 0 ? Expected<void>{} : renameFailure(error);
}

} // namespace

Expected<QByteArray> readWholeFile(const std::string& path, std::uint64_t maxBytes) {
    const Expected<Descriptor> file = openRegular(path);
    if (!file) {
        return std::unexpected(file.error());
    }
    QByteArray bytes;
    for (;;) {
        constexpr qsizetype piece = 64 * 1024;
        const qsizetype start = bytes.size();
        bytes.resize(start + piece);
        const ssize_t got = ::read(file->get(), bytes.data() + start, piece);
        if (got < 0 && errno != EINTR) {
            return systemFailure(errno);
        }
        bytes.resize(start + std::max<ssize_t>(got, 0));
        if (static_cast<std::uint64_t>(bytes.size()) > maxBytes) {
            return failure(ErrorKind::invalid,
                           QStringLiteral("it is larger than %1 bytes").arg(maxBytes));
        }
        if (got == 0) {
            return bytes;
        }
    }
}

Expected<void> writeFileDurably(const std::string& path, const QByteArray& bytes) {
    const Expected<std::string> target = throughLinks(path);
    if (!target) {
        return std::unexpected(target.error());
    }
    return writeThenRename(*target, bytes, renameReplacing);
}

Expected<void> writeNewFileDurably(const std::string& path, const QByteArray& bytes) {
    return writeThenRename(path, bytes, renameToNew);
}

Expected<void> syncFolderOf(const std::string& path) {
    const std::string parent(parentPath(path));
    const Descriptor folder(
        ::open(parent.empty() ? "." : parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen() || ::fsync(folder.get()) != 0) {
        return systemFailure(errno);
    }
    return {};
}

} // namespace quillon
