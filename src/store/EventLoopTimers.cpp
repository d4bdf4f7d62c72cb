#include "store/EventLoopTimers.h"

#include <QTimer>

namespace quillon {
namespace {

constexpr std::chrono::seconds coarseFrom{30};

class LoopTimer final : public Timer {
public:
    LoopTimer(std::chrono::milliseconds interval, bool isSingle, std::function<void()> work) {
        timer_.setTimerType(interval >= coarseFrom ? Qt::VeryCoarseTimer : Qt::PreciseTimer);
        timer_.setSingleShot(isSingle);
        // The work may end this timer, and with it the connection that holds the work.
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [work = std::move(work)] {
            const std::function<void()> kept = work;
            kept();
        });
        timer_.start(interval);
    }

private:
    QTimer timer_;
};

} // namespace

std::unique_ptr<Timer> EventLoopTimers::after(std::chrono::milliseconds delay,
                                              std::function<void()> work) {
    return std::make_unique<LoopTimer>(delay, true, std::move(work));
}

std::unique_ptr<Timer> EventLoopTimers::every(std::chrono::milliseconds period,
                                              std::function<void()> work) {
    return std::make_unique<LoopTimer>(period, false, std::move(work));
}

} // namespace quillon
