#pragma once

#include "store/AppStore.h"
#include "store/RunLanes.h"
#include "store/RunMemory.h"
#include "store/SaveKeeper.h"

#include <atomic>

namespace quillon {

/// What the parts of an AppStore share. On the store's thread.
class StoreCore {
public:
    StoreCore(AppStore& owner, std::unique_ptr<StoreSession> opened,
              const AppStore::Surroundings& surroundings);

    AppStore& store;
    const AppStore::Surroundings around;
    /// Work in the background holds it too: the lock is let go when that has ended.
    const std::shared_ptr<StoreSession> session;
    RunMemory memory;
    RunLanes lanes; ///< by the path of the folder that is tidied
    SaveKeeper saving;

    /// Nothing new is begun: the store is ending, or a preview.
    [[nodiscard]] bool isAtRest() const { return lanes.isClosed() || store.isPreview; }

    [[nodiscard]] PersistedState& state() { return session->state(); }
    [[nodiscard]] WatchedFolder* folder(const QUuid& folderID);
    [[nodiscard]] Timestamp now() const;

    /// Nothing is written while the store is a preview.
    Expected<void> save();
    /// Puts them in front of the log.
    void addLogs(const std::vector<LogEntry>& entries);

    /// Begins the piece when the lane is free, or drops it when nothing new is begun.
    void addWork(const QString& lane, RunLanes::Piece piece);
    /// `done` is dropped when the store has gone by then.
    void inBackground(std::function<void()> work, std::function<void()> done);
    /// The call, made only while the store is there.
    [[nodiscard]] std::function<void()> whileAlive(std::function<void()> call) const;

    /// False once there is a hurry. To be called from any thread, for as long as anybody likes.
    [[nodiscard]] std::function<bool()> unlessHurried(std::function<bool()> alsoAsked = {}) const;
    void hurry() { *isHurried_ = true; }

private:
    const std::shared_ptr<std::atomic<bool>> isHurried_ =
        std::make_shared<std::atomic<bool>>(false);
    const std::shared_ptr<int> life_ = std::make_shared<int>();
};

} // namespace quillon
