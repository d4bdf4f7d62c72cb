#include "store/StoreCore.h"

#include "platform/Clock.h"
#include "store/FolderList.h"

namespace quillon {

StoreCore::StoreCore(AppStore& owner, std::unique_ptr<StoreSession> opened,
                     const AppStore::Surroundings& surroundings)
    : store(owner)
    , around(surroundings)
    , session(std::move(opened))
    , saving(*session, memory, around.storage, StorePlaces(around.platform.folders.data).memory(),
             around.timers, [this] { Q_EMIT store.lastSaveErrorChanged(); }) {
    const StorePlaces places(around.platform.folders.data);
    if (const auto bytes = around.storage.readWhole(places.memory(), largestMemory))
        memory.decode(*bytes);
    memory.keepOnly(state().folders);
}

WatchedFolder* StoreCore::folder(const QUuid& folderID) {
    return findFolder(state().folders, folderID);
}

Timestamp StoreCore::now() const {
    return around.platform.clock.now();
}

Expected<void> StoreCore::save() {
    if (store.isPreview)
        return {};
    return saving.save();
}

void StoreCore::addLogs(const std::vector<LogEntry>& entries) {
    if (entries.empty())
        return;
    state().addLogs(entries);
    Q_EMIT store.recentLogsChanged();
}

void StoreCore::addWork(const QString& lane, RunLanes::Piece piece) {
    if (isAtRest())
        piece.drop();
    else
        lanes.add(lane, std::move(piece));
}

void StoreCore::inBackground(std::function<void()> work, std::function<void()> done) {
    around.background.start(std::move(work), whileAlive(std::move(done)));
}

std::function<void()> StoreCore::whileAlive(std::function<void()> call) const {
    return [life = std::weak_ptr(life_), call = std::move(call)] {
        if (!life.expired())
            call();
    };
}

std::function<bool()> StoreCore::unlessHurried(std::function<bool()> alsoAsked) const {
    return [isHurried = isHurried_, alsoAsked = std::move(alsoAsked)] {
        return !*isHurried && (!alsoAsked || alsoAsked());
    };
}

} // namespace quillon
