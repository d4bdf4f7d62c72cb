#pragma once

#include "platform/Error.h"
#include "platform/linux/Descriptor.h"

#include <chrono>
#include <string>
#include <string_view>

namespace quillon {

/// A stream of bytes between two processes of this machine. One thread may send while another
/// receives; end() from any.
class LocalSocket {
public:
    explicit LocalSocket(Descriptor descriptor) : descriptor_(std::move(descriptor)) {}

    /// Fails with `notFound` when nobody listens there, with `timedOut` when somebody does and too
    /// many others wait already.
    [[nodiscard]] static Expected<LocalSocket> connect(const std::string& path,
                                                       std::chrono::milliseconds patience);

    /// The user whose process is at the other end.
    [[nodiscard]] Expected<unsigned> peerUser() const;

    /// The process at the other end; it may have ended.
    [[nodiscard]] Expected<int> peerProcess() const;

    /// Waits until all of it is on its way; false when the other end is gone.
    [[nodiscard]] bool send(std::string_view bytes);
    /// Never waits; true as well when the other end has so much to read already that this, which
    /// must be short, had to be dropped.
    [[nodiscard]] bool sendNow(std::string_view bytes);

    /// The next bytes, none at the end of the stream. Fails with `timedOut` when there are none
    /// within the patience, and sooner when a signal comes.
    [[nodiscard]] Expected<std::string> receive(std::chrono::milliseconds patience);

    /// Both ends see the end of the stream from now on, also where a thread waits for it.
    void end();

private:
    Descriptor descriptor_;
};

/// The user of this process.
[[nodiscard]] unsigned thisUser();

} // namespace quillon
