#pragma once

#include "platform/Clock.h"

namespace quillon {

/// A clock that stands until it is set. One thread.
class FakeClock final : public Clock {
public:
    explicit FakeClock(Timestamp moment = Timestamp{std::chrono::sys_days{std::chrono::year{2026} /
                                                                          5 / 23}})
        : now_(moment) {}

    [[nodiscard]] Timestamp now() const override { return now_; }

    void set(Timestamp moment) { now_ = moment; }
    void advance(std::chrono::nanoseconds by) { now_ += by; }

private:
    Timestamp now_;
};

} // namespace quillon
