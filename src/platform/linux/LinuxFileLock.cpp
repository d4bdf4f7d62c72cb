#include "platform/linux/LinuxFileLock.h"

#include "platform/linux/SystemError.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace quillon {

Expected<std::unique_ptr<FileLock>> LinuxFileLock::take(const std::string& path) {
    constexpr int flags = O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    Descriptor file(::open(path.c_str(), flags, S_IRUSR | S_IWUSR));
    if (!file.isOpen()) {
        return systemFailure(errno);
    }
    int result = 0;
    do {
        result = ::flock(file.get(), LOCK_EX | LOCK_NB);
    } while (result != 0 && errno == EINTR);
    if (result == 0) {
        return std::unique_ptr<FileLock>(new LinuxFileLock(std::move(file)));
    }
    if (errno == EWOULDBLOCK) {
        return failure(ErrorKind::alreadyExists,
                       QStringLiteral("another Quillon is at work on it"));
    }
    return systemFailure(errno);
}

} // namespace quillon
