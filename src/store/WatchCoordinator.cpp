#include "store/WatchCoordinator.h"

#include <set>
#include <utility>

namespace quillon {

struct WatchCoordinator::Watch {
    QString path;
    std::unique_ptr<FolderWatcher> watcher = nullptr;
};

WatchCoordinator::WatchCoordinator(FolderWatching& watching, Timers& timers, Background& background)
    : watching_(watching), timers_(timers), background_(background) {}

WatchCoordinator::~WatchCoordinator() = default;

void WatchCoordinator::sync(const std::vector<WatchedFolder>& folders) {
    const std::vector<QString> before = warnings();
    std::set<QUuid> wanted;
    for (const WatchedFolder& folder : folders) {
        if (watchesLive(folder.timing()))
            wanted.insert(folder.id);
    }
    const auto isUnwanted = [&wanted](const auto& item) { return !wanted.contains(item.first); };
    std::erase_if(watchers_, isUnwanted);
    std::erase_if(debounceItems_, isUnwanted);
    for (const WatchedFolder& folder : folders) {
        if (!wanted.contains(folder.id))
            continue;
        std::shared_ptr<Watch>& watch = watchers_[folder.id];
        if (!watch || watch->path != folder.path)
            watch = startWatch(folder);
    }
    if (onWarningsChanged && warnings() != before)
        onWarningsChanged();
}

std::shared_ptr<WatchCoordinator::Watch> WatchCoordinator::startWatch(const WatchedFolder& folder) {
    auto watch = std::make_shared<Watch>(Watch{.path = folder.path});
    // A call that arrives after its watch, or the coordinator with all of them, has gone does
    // nothing.
    const auto onOurThread = [this, watched = std::weak_ptr(watch)](auto work) {
        return [&background = background_, watched, work] {
            background.post([watched, work] {
                if (!watched.expired())
                    work();
            });
        };
    };
    watch->watcher =
        watching_.watch(folder.path.toStdString(),
                        {.changed = onOurThread([this, id = folder.id] { scheduleChange(id); }),
                         .warningChanged = onOurThread([this] {
                             if (onWarningsChanged)
                                 onWarningsChanged();
                         })});
    return watch;
}

void WatchCoordinator::scheduleChange(const QUuid& folderID) {
    debounceItems_[folderID] = timers_.after(watchDebounce, [this, folderID] {
        if (onFolderChanged)
            onFolderChanged(folderID);
    });
}

std::vector<QString> WatchCoordinator::warnings() const {
    std::vector<QString> sentences;
    for (const auto& [id, watch] : watchers_) {
        if (const std::optional<QString> warning = watch->watcher->warning())
            sentences.push_back(*warning);
    }
    return sentences;
}

bool WatchCoordinator::warnsOf(const QUuid& folderID) const {
    const auto watch = watchers_.find(folderID);
    return watch != watchers_.end() && watch->second->watcher->warning();
}

} // namespace quillon
