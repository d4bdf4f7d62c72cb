#include "platform/linux/LocalSocket.h"

#include "platform/linux/SocketAddress.h"
#include "platform/linux/SystemError.h"

#include <array>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

namespace quillon {

namespace {

timeval timeValue(std::chrono::milliseconds time) {
    return {.tv_sec = time.count() / 1000, .tv_usec = time.count() % 1000 * 1000};
}

bool setSendPatience(int descriptor, std::chrono::milliseconds patience) {
    const timeval time = timeValue(patience);
    return ::setsockopt(descriptor, SOL_SOCKET, SO_SNDTIMEO, &time, sizeof time) == 0;
}

Expected<ucred> peerOf(const Descriptor& descriptor) {
    ucred peer = {};
    socklen_t size = sizeof peer;
    if (::getsockopt(descriptor.get(), SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0)
        return systemFailure();
    return peer;
}

} // namespace

Expected<LocalSocket> LocalSocket::connect(const std::string& path,
                                           std::chrono::milliseconds patience) {
    const auto address = socketAddress(path);
    if (!address)
        return std::unexpected(address.error());
    Descriptor descriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    if (!descriptor.isOpen() || !setSendPatience(descriptor.get(), patience))
        return systemFailure();
    int result = 0;
    do
        result = ::connect(descriptor.get(), address->generic(), sizeof(sockaddr_un));
    while (result != 0 && errno == EINTR);
    if (result != 0) {
        const int error = errno;
        if (error == EAGAIN)
            return systemFailure(ETIMEDOUT);
        return systemFailure(error == ECONNREFUSED ? ENOENT : error);
    }
    if (!setSendPatience(descriptor.get(), std::chrono::milliseconds(0)))
        return systemFailure();
    return LocalSocket(std::move(descriptor));
}

Expected<unsigned> LocalSocket::peerUser() const {
    const auto peer = peerOf(descriptor_);
    if (!peer)
        return std::unexpected(peer.error());
    return peer->uid;
}

Expected<int> LocalSocket::peerProcess() const {
    const auto peer = peerOf(descriptor_);
    if (!peer)
        return std::unexpected(peer.error());
    return int(peer->pid);
}

bool LocalSocket::send(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = ::send(descriptor_.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(sent));
        else if (errno != EINTR)
            return false;
    }
    return true;
}

bool LocalSocket::sendNow(std::string_view bytes) {
    const ssize_t sent =
        ::send(descriptor_.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (sent < 0)
        return errno == EAGAIN || errno == EINTR;
    return static_cast<std::size_t>(sent) == bytes.size();
}

Expected<std::string> LocalSocket::receive(std::chrono::milliseconds patience) {
    pollfd waiting{.fd = descriptor_.get(), .events = POLLIN, .revents = 0};
    const int ready = ::poll(&waiting, 1, static_cast<int>(patience.count()));
    if (ready <= 0)
        return systemFailure(ready == 0 || errno == EINTR ? ETIMEDOUT : errno);
    std::string bytes;
    ssize_t count = 0;
    bytes.resize_and_overwrite(1 << 16, [&](char* space, std::size_t size) {
        count = ::recv(descriptor_.get(), space, size, MSG_DONTWAIT);
        return count > 0 ? static_cast<std::size_t>(count) : 0;
    });
    if (count < 0) {
        const int error = errno;
        // Whoever is gone without reading everything has ended the stream just as well.
        if (error == ECONNRESET)
            return std::string();
        return systemFailure(error == EAGAIN || error == EINTR ? ETIMEDOUT : error);
    }
    return bytes;
}

void LocalSocket::end() {
    // Fails only when the other end has done so already.
    (void)::shutdown(descriptor_.get(), SHUT_RDWR);
}

unsigned thisUser() {
    return ::geteuid();
}

} // namespace quillon
