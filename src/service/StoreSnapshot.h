#pragma once

#include "platform/Clock.h"
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
    QStringList warnings;              ///< sentences about what was found on opening
    QHash<QUuid, FolderAccess> access; ///< of every folder
    bool isInstance = false;           ///< an instance answered

    // Empty unless an instance runs.
    QStringList watchWarnings;
    std::optional<Error> lastSaveError;
    QSet<QUuid> settling; ///< folders that will be looked at again soon
    QHash<QUuid, Timestamp> lastScheduledRun;
};

} // namespace quillon
