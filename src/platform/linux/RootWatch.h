#pragma once

#include "platform/linux/Descriptor.h"
#include "platform/linux/InotifyQueue.h"
#include "platform/linux/WatchTree.h"
#include "platform/linux/WatchingOptions.h"

#include <QString>

#include <chrono>
#include <cstdint>
#include <ctime>
#include <future>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quillon {

/// Watches whatever folder is at a path: waits for it where there is none, notices when it goes or
/// is replaced, and looks at it from time to time where the system can't tell. One thread.
class RootWatch {
public:
    using Moment = std::chrono::steady_clock::time_point;

    /// Begins at once. What has changed from `since` on counts as a change. Borrows the queue and
    /// the options. `wake` is added to when something comes to light by itself.
    RootWatch(std::string path, InotifyQueue& queue, const WatchingOptions& options,
              std::shared_ptr<const Descriptor> wake, timespec since);
    ~RootWatch();
    RootWatch(const RootWatch&) = delete;
    RootWatch& operator=(const RootWatch&) = delete;

    void handle(const InotifyEvent& event);

    /// Finds out what is where, after messages were lost. Counts as a change where they matter.
    void rescan();

    /// Looks whether the path leads to another folder now.
    void relocate();

    /// When look() is to be called.
    [[nodiscard]] std::optional<Moment> lookDue() const { return lookDue_; }
    void look();

    /// Whether something has changed since the last call.
    [[nodiscard]] bool takeChange();

    /// As FolderWatcher::warning.
    [[nodiscard]] const std::optional<QString>& warning() const { return warning_; }

    /// Whether more watches would help.
    [[nodiscard]] bool lacksWatches() const { return limitReached_.has_value(); }

private:
    [[nodiscard]] bool watchTree();
    [[nodiscard]] bool waitAtAncestor();
    void holdLocation();
    void stopWatching();
    [[nodiscard]] bool isLookedAt() const { return !newWarning_.isEmpty(); }
    void lookAtRemote(const QString& reason, const QString& kind);
    void lookForLackOfWatches();
    void lookInstead(const QString& reason, const QString& advice);
    void startSnapshot();
    void endLooking();

    std::string path_;
    InotifyQueue& queue_;
    const WatchingOptions& options_;
    std::shared_ptr<const Descriptor> wake_;

    std::optional<WatchTree> tree_;
    std::vector<int> location_; ///< the watches of the folders on the way
    int awaitedIn_ = -1;        ///< the watch of the folder in which the way ends too early
    std::string awaitedName_;
    QString newWarning_; ///< set while it is looked at instead of watched
    std::optional<std::uint64_t> snapshot_;
    std::future<std::uint64_t> nextSnapshot_; ///< valid while it is being taken
    std::optional<std::size_t> limitReached_;
    std::optional<Moment> lookDue_;
    std::optional<QString> warning_; ///< the new one, once there is a snapshot or it takes long
    bool hasChanged_ = false;
};

} // namespace quillon
