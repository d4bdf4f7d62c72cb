#pragma once

#include "platform/Timers.h"

namespace quillon {

/// Timers of the Qt event loop of the thread that uses them. Those of half a minute and more keep
/// to whole seconds, so that the system wakes up less often.
class EventLoopTimers final : public Timers {
public:
    [[nodiscard]] std::unique_ptr<Timer> after(std::chrono::milliseconds delay,
                                               std::function<void()> work) override;
    [[nodiscard]] std::unique_ptr<Timer> every(std::chrono::milliseconds period,
                                               std::function<void()> work) override;
};

} // namespace quillon
