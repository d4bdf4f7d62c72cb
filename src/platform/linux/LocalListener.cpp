#include "platform/linux/LocalListener.h"

#include "platform/linux/SocketAddress.h"
#include "platform/linux/SystemError.h"

#include <cerrno>
#include <cstdio>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr int longestQueue = 64;
constexpr std::chrono::milliseconds answerPatience{200};

/// The file's number; 0 when there is nothing.
unsigned long long numberOf(const std::string& path) {
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 ? status.st_ino : 0;
}

Expected<void> checkFree(const std::string& path) {
    struct stat status = {};
    if (::lstat(path.c_str(), &status) != 0)
        return errno == ENOENT ? Expected<void>() : systemFailure();
    if (!S_ISSOCK(status.st_mode))
        return failure(ErrorKind::alreadyExists,
                       QStringLiteral("there is something else at its path"));
    const auto other = LocalSocket::connect(path, answerPatience);
    if (other || other.error().kind == ErrorKind::timedOut)
        return failure(ErrorKind::alreadyExists,
                       QStringLiteral("another Quillon listens there already"));
    return {};
}

} // namespace

LocalListener::LocalListener(Descriptor descriptor, std::string path)
    : descriptor_(std::move(descriptor)), path_(std::move(path)), identity_(numberOf(path_)) {}

Expected<LocalListener> LocalListener::listen(const std::string& path) {
    if (auto isFree = checkFree(path); !isFree)
        return std::unexpected(isFree.error());
    // Made under another name, so that whoever finds the real one finds somebody listening.
    const std::string temporary = path + ".new";
    const auto address = socketAddress(temporary);
    if (!address)
        return std::unexpected(address.error());
    Descriptor descriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    // The mode of the descriptor is what bind() gives to the name.
    if (!descriptor.isOpen() || ::fchmod(descriptor.get(), S_IRUSR | S_IWUSR) != 0)
        return systemFailure();
    if (::unlink(temporary.c_str()) != 0 && errno != ENOENT)
        return systemFailure();
    if (::bind(descriptor.get(), address->generic(), sizeof(sockaddr_un)) != 0)
        return systemFailure();
    if (::listen(descriptor.get(), longestQueue) != 0 ||
        ::rename(temporary.c_str(), path.c_str()) != 0) {
        const int error = errno;
        (void)::unlink(temporary.c_str());
        return systemFailure(error);
    }
    return LocalListener(std::move(descriptor), path);
}

LocalListener::~LocalListener() {
    if (descriptor_.isOpen() && identity_ != 0 && numberOf(path_) == identity_)
        // A name that stays is taken over by the next to listen.
        (void)::unlink(path_.c_str());
}

Expected<std::optional<LocalSocket>> LocalListener::accept() {
    for (;;) {
        Descriptor caller(::accept4(descriptor_.get(), nullptr, nullptr, SOCK_CLOEXEC));
        if (caller.isOpen())
            return LocalSocket(std::move(caller));
        if (errno == EAGAIN)
            return std::nullopt;
        if (errno != EINTR && errno != ECONNABORTED)
            return systemFailure();
    }
}

} // namespace quillon
