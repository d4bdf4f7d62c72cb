#pragma once

#include "platform/linux/LocalSocket.h"

#include <optional>
#include <string>

namespace quillon {

/// A socket in the file system at which other processes of the same user call.
class LocalListener {
public:
    /// Takes the place of a socket that nobody listens at any more. Fails with `alreadyExists` when
    /// somebody does, or when the name belongs to something else.
    [[nodiscard]] static Expected<LocalListener> listen(const std::string& path);

    LocalListener(LocalListener&& other) = default;
    LocalListener& operator=(LocalListener&& other) = delete;
    /// Removes the name, unless another socket has taken it.
    ~LocalListener();

    /// The next caller; nothing when none waits. Fails when one can't be taken, for want of
    /// descriptors for instance, and goes on waiting.
    [[nodiscard]] Expected<std::optional<LocalSocket>> accept();

    /// Can be read from when somebody calls. For an event loop.
    [[nodiscard]] int descriptor() const { return descriptor_.get(); }

private:
    LocalListener(Descriptor descriptor, std::string path);

    Descriptor descriptor_;
    std::string path_;
    unsigned long long identity_ = 0; ///< the number of the file that has the name
};

} // namespace quillon
