#include "platform/linux/FileContents.h"

#include "platform/linux/SystemError.h"

#include <cerrno>
#include <cstring>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>
#include <vector>

namespace quillon {

namespace {

constexpr std::size_t bufferSize = 256 * 1024;

using Buffer = std::vector<char>;

std::unexpected<Error> changedWhileCopied() {
    return failure(ErrorKind::changed, QStringLiteral("it changed while it was being copied"));
}

/// Fills as much of the buffer as the file has; less than `wanted` only at its end.
Expected<std::size_t> readAt(int file, char* buffer, std::size_t wanted, std::uint64_t offset) {
    std::size_t done = 0;
    while (done < wanted) {
        const ssize_t got =
            ::pread(file, buffer + done, wanted - done, static_cast<off_t>(offset + done));
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            return systemFailure(errno);
        }
        if (got == 0) {
            break;
        }
        done += static_cast<std::size_t>(got);
    }
    return done;
}

Expected<void> writeAt(int file, const char* buffer, std::size_t size, std::uint64_t offset) {
    std::size_t done = 0;
    while (done < size) {
        const ssize_t put =
            ::pwrite(file, buffer + done, size - done, static_cast<off_t>(offset + done));
        if (put < 0 && errno == EINTR) {
            continue;
        }
        if (put <= 0) {
            return systemFailure(put == 0 ? ENOSPC : errno);
        }
        done += static_cast<std::size_t>(put);
    }
    return {};
}

class ContentCopy {
public:
    ContentCopy(int from, int to) : from_(from), to_(to) {}

    Expected<void> copyRange(std::uint64_t start, std::uint64_t end) {
        Expected<std::uint64_t> reached = copyInKernel(start, end);
        return reached ? copyByHand(*reached, end) : std::unexpected(reached.error());
    }

private:
    /// How far the kernel got. What it can't or won't copy is left to copyByHand.
    Expected<std::uint64_t> copyInKernel(std::uint64_t start, std::uint64_t end) {
        auto source = static_cast<off_t>(start);
        auto target = static_cast<off_t>(start);
        while (kernelCopies_ && static_cast<std::uint64_t>(source) < end) {
            const std::size_t left =
                static_cast<std::size_t>(end - static_cast<std::uint64_t>(source));
            const ssize_t copied = ::copy_file_range(from_, &source, to_, &target, left, 0);
            if (copied > 0 || (copied < 0 && errno == EINTR)) {
                continue;
            }
            const bool isReal = copied < 0 && (errno == ENOSPC || errno == EDQUOT || errno == EIO ||
                                               errno == EFBIG);
            if (isReal) {
                return systemFailure(errno);
            }
            kernelCopies_ = false;
        }
        return static_cast<std::uint64_t>(source);
    }

    Expected<void> copyByHand(std::uint64_t start, std::uint64_t end) {
        if (start < end) {
            buffer_.resize(bufferSize);
        }
        while (start < end) {
            const std::size_t wanted = std::min<std::uint64_t>(bufferSize, end - start);
            const Expected<std::size_t> got = readAt(from_, buffer_.data(), wanted, start);
            if (!got) {
                return std::unexpected(got.error());
            }
            if (*got < wanted) {
                return changedWhileCopied();
            }
            if (Expected<void> put = writeAt(to_, buffer_.data(), *got, start); !put) {
                return put;
            }
            start += *got;
        }
        return {};
    }

    int from_;
    int to_;
    bool kernelCopies_ = true;
    Buffer buffer_;
};

struct Extent {
    std::uint64_t start;
    std::uint64_t end;
};

/// The next stretch that holds data at or after `offset`; empty when only a hole is left. A file
/// system that knows no holes has one stretch.
std::optional<Extent> nextExtent(int file, std::uint64_t offset, std::uint64_t size) {
    const off_t data = ::lseek(file, static_cast<off_t>(offset), SEEK_DATA);
    if (data < 0) {
        return errno == ENXIO ? std::nullopt : std::optional(Extent{offset, size});
    }
    const off_t hole = ::lseek(file, data, SEEK_HOLE);
    const std::uint64_t end = hole < 0 ? size : static_cast<std::uint64_t>(hole);
    return Extent{static_cast<std::uint64_t>(data), std::min(end, size)};
}

} // namespace

Expected<void> copyContents(int from, int to, std::uint64_t size) {
    if (::ioctl(to, FICLONE, from) == 0) {
        return {};
    }
    ContentCopy copy(from, to);
    for (std::uint64_t offset = 0; offset < size;) {
        const std::optional<Extent> extent = nextExtent(from, offset, size);
        if (!extent || extent->start >= size) {
            break;
        }
        if (Expected<void> copied = copy.copyRange(extent->start, extent->end); !copied) {
            return copied;
        }
        offset = extent->end;
    }
    if (::ftruncate(to, static_cast<off_t>(size)) != 0) {
        return systemFailure(errno);
    }
    return {};
}

Expected<bool> haveSameBytes(int one, int other, std::uint64_t size) {
    Buffer first(bufferSize);
    Buffer second(bufferSize);
    for (std::uint64_t offset = 0; offset < size; offset += bufferSize) {
        const std::size_t wanted = std::min<std::uint64_t>(bufferSize, size - offset);
        const Expected<std::size_t> left = readAt(one, first.data(), wanted, offset);
        const Expected<std::size_t> right = readAt(other, second.data(), wanted, offset);
        if (!left || !right) {
            return std::unexpected(left ? right.error() : left.error());
        }
        if (*left != wanted || *right != wanted ||
            std::memcmp(first.data(), second.data(), wanted) != 0) {
            return false;
        }
    }
    return true;
}

int writeAll(int file, const char* bytes, std::size_t size) {
    while (size > 0) {
        const ssize_t put = ::write(file, bytes, size);
        if (put < 0 && errno == EINTR) {
            continue;
        }
        if (put <= 0) {
            return put == 0 ? ENOSPC : errno;
        }
        bytes += put;
        size -= static_cast<std::size_t>(put);
    }
    return 0;
}

} // namespace quillon
