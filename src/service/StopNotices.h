#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace quillon {

/// Calls on the event loop's thread for each request to end this process, once untilAskedToStop()
/// notes them. One at a time, since each request is told of once.
class StopNotices {
public:
    explicit StopNotices(std::function<void()> askedToStop);

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace quillon
