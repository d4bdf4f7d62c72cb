#include "platform/linux/WatchSubscription.h"

#include <utility>

namespace quillon {

WatchSubscription::WatchSubscription(std::string path, FolderWatchHandlers handlers, timespec since)
    : path_(std::move(path)), handlers_(std::move(handlers)), since_(since) {}

void WatchSubscription::tellOfChange() {
    const std::lock_guard calling(calling_);
    if (!hasEnded_ && handlers_.changed) {
        handlers_.changed();
    }
}

void WatchSubscription::setWarning(const std::optional<QString>& warning) {
    {
        const std::lock_guard lock(warningLock_);
        if (std::exchange(warning_, warning) == warning) {
            return;
        }
    }
    const std::lock_guard calling(calling_);
    if (!hasEnded_ && handlers_.warningChanged) {
        handlers_.warningChanged();
    }
}

std::optional<QString> WatchSubscription::warning() const {
    const std::lock_guard lock(warningLock_);
    return warning_;
}

void WatchSubscription::end() {
    const std::lock_guard calling(calling_);
    hasEnded_ = true;
}

} // namespace quillon
