#pragma once

#include "platform/Error.h"

#include <string>
#include <sys/socket.h>
#include <sys/un.h>

namespace quillon {

/// The address of a socket in the file system.
struct SocketAddress {
    sockaddr_un address = {};

    [[nodiscard]] const sockaddr* generic() const {
        return reinterpret_cast<const sockaddr*>(&address);
    }
};

/// Fails with `invalid` and a clause for people when the system has no room for the path.
[[nodiscard]] Expected<SocketAddress> socketAddress(const std::string& path);

} // namespace quillon
