#pragma once

#include "model/LogEntry.h"
#include "model/WatchedFolder.h"
#include "store/FolderAccess.h"

#include <QHash>
#include <QUuid>

#include <vector>

namespace quillon {

/// Whether an entry tells of something that went wrong within the last day.
[[nodiscard]] bool isRecentError(const LogEntry& entry, Timestamp now);

/// Those of a folder.
[[nodiscard]] std::size_t recentErrorCount(const std::vector<LogEntry>& logs, const QUuid& folderID,
                                           Timestamp now);

/// The files that those of a folder tell of.
[[nodiscard]] std::size_t recentFailureCount(const std::vector<LogEntry>& logs,
                                             const QUuid& folderID, Timestamp now);

/// Some folder has been found to be not `ok`, or something went wrong within the last day.
[[nodiscard]] bool needsAttention(const std::vector<WatchedFolder>& folders,
                                  const QHash<QUuid, FolderAccess>& access,
                                  const std::vector<LogEntry>& logs, Timestamp now);

} // namespace quillon
