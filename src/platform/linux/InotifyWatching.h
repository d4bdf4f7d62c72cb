#pragma once

#include "platform/FolderWatcher.h"
#include "platform/linux/WatchingOptions.h"

#include <memory>
#include <mutex>

namespace quillon {

class WatchLoop;

/// Watches folders through inotify, all of them with one thread, which starts with the first. Where
/// the system doesn't tell of changes, it looks from time to time. Must outlive its watchers.
class InotifyWatching final : public FolderWatching {
public:
    explicit InotifyWatching(WatchingOptions options = {});
    ~InotifyWatching() override;

    [[nodiscard]] std::unique_ptr<FolderWatcher> watch(const std::string& path,
                                                       FolderWatchHandlers handlers) override;

private:
    WatchingOptions options_;
    std::once_flag started_;
    std::unique_ptr<WatchLoop> loop_;
};

} // namespace quillon
