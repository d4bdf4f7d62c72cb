#pragma once

#include "platform/Error.h"
#include "store/AppStore.h"
#include "store/FolderAccess.h"
#include "store/PersistedState.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QUuid>

#include <optional>

namespace quillon {

/// What a command that only reads sees: the state, and what only a running instance knows.
struct StoreSnapshot {
    PersistedState state;
    QStringList warnings = {};                     ///< sentences about what was found on opening
    QHash<QUuid, FolderAccess> access = {};        ///< of every folder
    QSet<QUuid> settling = {};                     ///< folders that will be looked at again soon
    QStringList watchWarnings = {};                ///< empty unless an instance runs
    std::optional<Error> lastSaveError = {};       ///< likewise
    QHash<QUuid, Timestamp> lastScheduledRun = {}; ///< likewise
    bool isInstance = false;                       ///< an instance answered
};

/// On the store's thread. Without the sentences about its opening, which its log has.
[[nodiscard]] StoreSnapshot snapshotOf(const AppStore& store);

} // namespace quillon
