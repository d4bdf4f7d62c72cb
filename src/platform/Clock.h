#pragma once

#include <chrono>

namespace quillon {

/// A moment, nanoseconds since 1970-01-01T00:00:00Z.
using Timestamp = std::chrono::sys_time<std::chrono::nanoseconds>;

/// The wall clock. Any thread.
class Clock {
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual Timestamp now() const = 0;
};

} // namespace quillon
