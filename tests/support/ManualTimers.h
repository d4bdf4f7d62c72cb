#pragma once

#include "platform/Timers.h"

#include <algorithm>
#include <map>

namespace quillon::testing {

/// Timers of a time that passes when it is told to.
class ManualTimers final : public Timers {
public:
    [[nodiscard]] std::unique_ptr<Timer> after(std::chrono::milliseconds delay,
                                               std::function<void()> work) override {
        return add(delay, std::chrono::milliseconds(0), std::move(work));
    }
    [[nodiscard]] std::unique_ptr<Timer> every(std::chrono::milliseconds period,
                                               std::function<void()> work) override {
        return add(period, period, std::move(work));
    }

    /// Lets time pass; what comes due happens in order, each at its own time.
    void advance(std::chrono::milliseconds by) {
        const std::chrono::milliseconds end = now_ + by;
        for (auto next = earliest(); next != waiting_.end() && next->second.due <= end;
             next = earliest()) {
            now_ = next->second.due;
            const std::function<void()> work = next->second.work;
            if (next->second.period.count() > 0)
                next->second.due += next->second.period;
            else
                waiting_.erase(next);
            work();
        }
        now_ = end;
    }

    [[nodiscard]] std::size_t waiting() const { return waiting_.size(); }

private:
    struct Waiting {
        std::chrono::milliseconds due;
        std::chrono::milliseconds period;
        std::function<void()> work;
    };
    class Handle final : public Timer {
    public:
        Handle(ManualTimers& timers, unsigned number) : timers_(timers), number_(number) {}
        ~Handle() override { timers_.waiting_.erase(number_); }

    private:
        ManualTimers& timers_;
        unsigned number_;
    };

    std::unique_ptr<Timer> add(std::chrono::milliseconds delay, std::chrono::milliseconds period,
                               std::function<void()> work) {
        waiting_[++last_] = {now_ + delay, period, std::move(work)};
        return std::make_unique<Handle>(*this, last_);
    }

    std::map<unsigned, Waiting>::iterator earliest() {
        return std::ranges::min_element(
            waiting_, {}, [](const auto& item) { return std::pair(item.second.due, item.first); });
    }

    std::chrono::milliseconds now_{0};
    std::map<unsigned, Waiting> waiting_;
    unsigned last_ = 0;
};

} // namespace quillon::testing
