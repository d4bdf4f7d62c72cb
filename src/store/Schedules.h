#pragma once

#include "model/WatchedFolder.h"
#include "platform/Clock.h"

#include <QHash>

#include <chrono>
#include <optional>
#include <vector>

namespace quillon {

/// How often a folder is tidied by the clock: as its schedule says; once a day for a live folder
/// with an enabled rule on a date, since files age without any event; otherwise never.
[[nodiscard]] std::optional<std::chrono::seconds> tidyInterval(const WatchedFolder& folder);

/// The folders whose time has come, in order. A folder that has never run is due at once; a last
/// run in the future, after the clock was set back, counts as none.
[[nodiscard]] std::vector<QUuid> dueFolders(const std::vector<WatchedFolder>& folders,
                                            const QHash<QUuid, Timestamp>& lastRun, Timestamp now);

} // namespace quillon
