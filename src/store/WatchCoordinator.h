#pragma once

#include "model/WatchedFolder.h"
#include "platform/Background.h"
#include "platform/FolderWatcher.h"
#include "platform/Timers.h"

#include <QString>
#include <QUuid>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace quillon {

/// How long a folder must be quiet before it is tidied.
inline constexpr std::chrono::milliseconds watchDebounce{800};

/// Keeps one watcher for each live folder, and turns bursts of their events into one call. On the
/// store's thread.
class WatchCoordinator {
public:
    /// Borrows all three.
    WatchCoordinator(FolderWatching& watching, Timers& timers, Background& background);
    ~WatchCoordinator();

    /// Called 0.8 s after a folder's last change.
    std::function<void(const QUuid& folderID)> onFolderChanged;
    /// Called when a sentence of warnings() has come or gone.
    std::function<void()> onWarningsChanged;

    /// Makes the watchers match the folders that are tidied live. A folder that stays live keeps
    /// its watcher, unless its path has changed; one that no longer is makes no more calls.
    void sync(const std::vector<WatchedFolder>& folders);

    void scheduleChange(const QUuid& folderID);

    /// Of folders that can't be watched as they should, in the order of the ids.
    [[nodiscard]] std::vector<QString> warnings() const;
    /// Whether one of them is about this folder.
    [[nodiscard]] bool warnsOf(const QUuid& folderID) const;

private:
    struct Watch;

    [[nodiscard]] std::shared_ptr<Watch> startWatch(const WatchedFolder& folder);

    FolderWatching& watching_;
    Timers& timers_;
    Background& background_;
    std::map<QUuid, std::shared_ptr<Watch>> watchers_;
    std::map<QUuid, std::unique_ptr<Timer>> debounceItems_;
};

} // namespace quillon
