#include "ui/ProgressRelay.h"

#include <atomic>
#include <memory>
#include <utility>

namespace quillon {

Progress relayed(Background& background, Progress told) {
    struct Report {
        std::atomic<std::size_t> done = 0;
        std::atomic<bool> isOnItsWay = false;
    };
    return [&background, told = std::move(told),
            report = std::make_shared<Report>()](std::size_t done, std::size_t total) {
        report->done = done;
        if (report->isOnItsWay.exchange(true))
            return;
        background.post([told, report, total] {
            report->isOnItsWay = false;
            told(report->done, total);
        });
    };
}

} // namespace quillon
