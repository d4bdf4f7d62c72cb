#include "service/StoreSnapshot.h"

namespace quillon {

StoreSnapshot snapshotOf(const AppStore& store) {
    StoreSnapshot snapshot{.state = {.folders = store.folders(),
                                     .logs = store.recentLogs(),
                                     .processedFiles = store.processedFiles(),
                                     .isPaused = store.isPaused(),
                                     .other = {}},
                           .watchWarnings = store.watchWarnings(),
                           .lastSaveError = store.lastSaveError(),
                           .lastScheduledRun = store.lastScheduledRun()};
    for (const WatchedFolder& folder : snapshot.state.folders)
        if (store.isSettling(folder.id))
            snapshot.settling.insert(folder.id);
    return snapshot;
}

} // namespace quillon
