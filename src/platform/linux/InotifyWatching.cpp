#include "platform/linux/InotifyWatching.h"

#include "platform/linux/WatchLoop.h"
#include "platform/linux/WatchSubscription.h"

#include <ctime>
#include <utility>

namespace quillon {

namespace {

class Watcher final : public FolderWatcher {
public:
    Watcher(WatchLoop& loop, std::shared_ptr<WatchSubscription> subscription)
        : loop_(loop), subscription_(std::move(subscription)) {
        loop_.add(subscription_);
    }
    ~Watcher() override {
        subscription_->end();
        loop_.remove(subscription_);
    }

    [[nodiscard]] std::optional<QString> warning() const override {
        return subscription_->warning();
    }

private:
    WatchLoop& loop_;
    std::shared_ptr<WatchSubscription> subscription_;
};

std::string withoutTrailingSlashes(std::string path) {
    while (path.size() > 1 && path.ends_with('/')) {
        path.pop_back();
    }
    return path;
}

} // namespace

InotifyWatching::InotifyWatching(WatchingOptions options) : options_(std::move(options)) {}

InotifyWatching::~InotifyWatching() = default;

std::unique_ptr<FolderWatcher> InotifyWatching::watch(const std::string& path,
                                                      FolderWatchHandlers handlers) {
    std::call_once(started_, [this] { loop_ = std::make_unique<WatchLoop>(options_); });
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
    return std::make_unique<Watcher>(
        *loop_, std::make_shared<WatchSubscription>(withoutTrailingSlashes(path),
                                                    std::move(handlers), now));
}

} // namespace quillon
