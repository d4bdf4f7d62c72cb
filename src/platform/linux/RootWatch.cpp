#include "platform/linux/RootWatch.h"

#include "platform/FileNames.h"
#include "platform/linux/FolderSnapshot.h"

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <sys/inotify.h>
#include <sys/stat.h>

namespace quillon {

namespace {

/// How often a path is followed that changes while it is looked at.
constexpr int mostTries = 8;

bool isExhaustion(int error) {
    return error == ENOSPC || error == ENOMEM || error == EMFILE || error == ENFILE;
}

bool isLink(const std::string& path) {
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

} // namespace

RootWatch::RootWatch(std::string path, InotifyQueue& queue, const WatchingOptions& options,
                     std::shared_ptr<const Descriptor> wake, timespec since)
    : path_(std::move(path)), queue_(queue), options_(options), wake_(std::move(wake)) {
    relocate();
    const auto isSince = [&since](const timespec& time) {
        return std::pair(time.tv_sec, time.tv_nsec) >= std::pair(since.tv_sec, since.tv_nsec);
    };
    hasChanged_ = tree_ && isSince(tree_->latestChange());
}

RootWatch::~RootWatch() {
    stopWatching();
}

void RootWatch::handle(const InotifyEvent& event) {
    constexpr std::uint32_t leaving = IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT | IN_IGNORED;
    if (std::ranges::find(location_, event.watch) != location_.end()) {
        const bool isAwaited = event.watch == awaitedIn_ && event.name == awaitedName_;
        if (isAwaited || (event.mask & leaving) != 0) {
            relocate();
        }
        return;
    }
    if (!tree_) {
        return;
    }
    const WatchTree::Outcome outcome = tree_->handle(event);
    hasChanged_ = hasChanged_ || outcome.isChange;
    if (outcome.error != 0) {
        lookForLackOfWatches();
    } else if (outcome.isRootGone) {
        relocate();
    }
}

void RootWatch::rescan() {
    if (isLookedAt()) {
        return;
    }
    hasChanged_ = true;
    relocate();
    if (tree_ && tree_->scan() != 0) {
        lookForLackOfWatches();
    }
}

void RootWatch::relocate() {
    if (const std::optional<QString> kind = options_.remoteKind(path_)) {
        lookAtRemote(QStringLiteral("is on %1"), *kind);
        return;
    }
    if (const std::optional<QString> kind = options_.remoteKindWithin(path_)) {
        lookAtRemote(QStringLiteral("holds %1"), *kind);
        return;
    }
    for (int tries = 0; tries < mostTries; ++tries) {
        if (watchTree() || waitAtAncestor()) {
            return;
        }
    }
}

/// Whether the folder is watched now, or, for lack of watches, looked at.
bool RootWatch::watchTree() {
    // Held from before its own watch is made, so that no move on the way goes unseen.
    const std::vector<int> former = std::exchange(location_, {});
    holdLocation();
    awaitedIn_ = -1;
    const int watch = queue_.hold(path_, InotifyQueue::Interest::root);
    std::ranges::for_each(former, [this](int each) { queue_.release(each); });
    if (tree_ && tree_->rootWatch() == watch) {
        queue_.release(watch);
        return true;
    }
    hasChanged_ = hasChanged_ || tree_ || watch >= 0;
    tree_.reset();
    if (watch < 0) {
        if (isExhaustion(-watch)) {
            lookForLackOfWatches();
        }
        return isExhaustion(-watch);
    }
    tree_.emplace(queue_, path_, watch);
    if (tree_->scan() != 0) {
        lookForLackOfWatches();
        return true;
    }
    endLooking();
    return true;
}

void RootWatch::holdLocation() {
    for (std::string folder = path_; folder != "/";) {
        folder = parentPath(folder);
        // One that can't be read is passed through all the same.
        if (const int watch = queue_.hold(folder, InotifyQueue::Interest::location); watch >= 0) {
            location_.push_back(watch);
        }
    }
}

/// Whether that is settled; not when more of the way has come into being meanwhile.
bool RootWatch::waitAtAncestor() {
    for (std::string missing = path_; missing != "/"; missing = parentPath(missing)) {
        const std::string folder(parentPath(missing));
        const int watch = queue_.hold(folder, InotifyQueue::Interest::root);
        if (watch < 0 && isExhaustion(-watch)) {
            lookForLackOfWatches();
            return true;
        }
        if (watch < 0) {
            continue;
        }
        location_.push_back(watch);
        awaitedIn_ = watch;
        awaitedName_ = lastComponent(missing);
        if (const std::optional<QString> kind = options_.remoteKind(folder)) {
            lookAtRemote(QStringLiteral("is on %1"), *kind);
            return true;
        }
        endLooking();
        if (isLink(missing)) { // whose target may come back anywhere
            lookDue_ = std::chrono::steady_clock::now() + options_.pollInterval;
        }
        const int there = queue_.hold(missing, InotifyQueue::Interest::location);
        queue_.release(there);
        return there < 0;
    }
    lookDue_ = std::chrono::steady_clock::now() + options_.pollInterval;
    return true;
}

void RootWatch::look() {
    const bool isLimitRaised = limitReached_ && queue_.reopen() && queue_.limit() > *limitReached_;
    if (!isLookedAt() || isLimitRaised) {
        lookDue_.reset();
        relocate();
        return;
    }
    startSnapshot();
}

bool RootWatch::takeChange() {
    using namespace std::chrono_literals;
    if (nextSnapshot_.valid() && nextSnapshot_.wait_for(0s) == std::future_status::ready) {
        const std::uint64_t now = nextSnapshot_.get();
        hasChanged_ = hasChanged_ || (snapshot_ && now != *snapshot_);
        snapshot_ = now;
        warning_ = newWarning_;
    }
    return std::exchange(hasChanged_, false);
}

void RootWatch::lookAtRemote(const QString& reason, const QString& kind) {
    if (!isLookedAt() || lacksWatches()) {
        lookInstead(QStringLiteral("%1, which doesn’t tell of changes").arg(reason.arg(kind)),
                    QStringLiteral("put it on a schedule if that is too often"));
        limitReached_.reset();
    }
}

void RootWatch::lookForLackOfWatches() {
    const bool hasQueue = queue_.error() == 0;
    lookInstead(QStringLiteral("is more than the system’s limit lets Quillon watch"),
                QStringLiteral("raise fs.inotify.max_user_%1 to have it tidied at once")
                    .arg(hasQueue ? QStringLiteral("watches") : QStringLiteral("instances")));
    limitReached_ = hasQueue ? queue_.limit() : 0;
}

void RootWatch::lookInstead(const QString& reason, const QString& advice) {
    stopWatching();
    const auto interval = std::chrono::duration_cast<std::chrono::seconds>(options_.pollInterval);
    const std::string_view name = path_ == "/" ? path_ : lastComponent(path_);
    newWarning_ = QStringLiteral("“%1” %2, so Quillon looks every %3 seconds; %4")
                      .arg(QString::fromStdString(std::string(name)), reason,
                           QString::number(interval.count()), advice);
    startSnapshot();
}

/// Unless one is still being taken.
void RootWatch::startSnapshot() {
    if (nextSnapshot_.valid()) {
        warning_ = newWarning_;
    } else {
        nextSnapshot_ = folderSnapshotLater(path_, wake_);
    }
    lookDue_ = std::chrono::steady_clock::now() + options_.pollInterval;
}

void RootWatch::endLooking() {
    newWarning_.clear();
    snapshot_.reset();
    nextSnapshot_ = {};
    limitReached_.reset();
    lookDue_.reset();
    warning_.reset();
}

void RootWatch::stopWatching() {
    tree_.reset();
    for (const int watch : std::exchange(location_, {})) {
        queue_.release(watch);
    }
    awaitedIn_ = -1;
}

} // namespace quillon
