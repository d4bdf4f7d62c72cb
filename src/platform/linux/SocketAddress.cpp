#include "platform/linux/SocketAddress.h"

#include <algorithm>

namespace quillon {

Expected<SocketAddress> socketAddress(const std::string& path) {
    SocketAddress result;
    const std::size_t room = sizeof result.address.sun_path - 1;
    if (path.size() > room)
        return failure(
            ErrorKind::invalid,
            QStringLiteral("its path is longer than the %1 bytes that the system allows; "
                           "set XDG_RUNTIME_DIR to a folder with a shorter path")
                .arg(room));
    result.address.sun_family = AF_UNIX;
    std::ranges::copy(path, result.address.sun_path);
    return result;
}

} // namespace quillon
