#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace quillon {

/// Work that waits. Cancelled when the object goes, also from within the work itself.
class Timer {
public:
    virtual ~Timer() = default;
};

/// Delayed work on the thread of an event loop. To be used on that thread alone. Time is monotonic.
class Timers {
public:
    virtual ~Timers() = default;

    [[nodiscard]] virtual std::unique_ptr<Timer> after(std::chrono::milliseconds delay,
                                                       std::function<void()> work) = 0;

    /// For the first time one period from now.
    [[nodiscard]] virtual std::unique_ptr<Timer> every(std::chrono::milliseconds period,
                                                       std::function<void()> work) = 0;
};

} // namespace quillon
