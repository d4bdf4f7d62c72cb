#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace quillon {

/// Something that one thread tells another, which waits for it.
class Signal {
public:
    void raise() {
        const std::scoped_lock guard(lock_);
        isRaised_ = true;
        raised_.notify_all();
    }

    /// Whether it was raised before `mayContinue` turned false, which is asked 20 times a second.
    /// Lowers it again.
    bool wait(const std::function<bool()>& mayContinue = {}) {
        std::unique_lock guard(lock_);
        while (!isRaised_) {
            if (!mayContinue) {
                raised_.wait(guard);
                continue;
            }
            raised_.wait_for(guard, betweenQuestions);
            guard.unlock();
            const bool goesOn = mayContinue();
            guard.lock();
            if (!goesOn && !isRaised_)
                return false;
        }
        isRaised_ = false;
        return true;
    }

private:
    static constexpr std::chrono::milliseconds betweenQuestions{50};

    std::mutex lock_;
    std::condition_variable raised_;
    bool isRaised_ = false;
};

} // namespace quillon
