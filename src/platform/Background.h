#pragma once

#include <functional>

namespace quillon {

/// Threads for work that would hold up an event loop.
class Background {
public:
    virtual ~Background() = default;

    /// Runs `work` on another thread, and then `done` on the thread that called start(). Pieces of
    /// work run side by side and end in any order.
    virtual void start(std::function<void()> work, std::function<void()> done) = 0;

    /// Runs `call` on the event loop's thread, soon. From any thread; calls made from one thread
    /// come in their order.
    virtual void post(std::function<void()> call) = 0;
};

} // namespace quillon
