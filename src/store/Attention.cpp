#include "store/Attention.h"

#include <QSet>

#include <algorithm>

namespace quillon {

bool isRecentError(const LogEntry& entry, Timestamp now) {
    return entry.isError && entry.date >= now - std::chrono::hours(24);
}

std::size_t recentErrorCount(const std::vector<LogEntry>& logs, const QUuid& folderID,
                             Timestamp now) {
    return std::size_t(std::ranges::count_if(logs, [&](const LogEntry& entry) {
        return entry.folderID == folderID && isRecentError(entry, now);
    }));
}

std::size_t recentFailureCount(const std::vector<LogEntry>& logs, const QUuid& folderID,
                               Timestamp now) {
    QSet<QString> files;
    for (const LogEntry& entry : logs)
        if (entry.folderID == folderID && isRecentError(entry, now))
            files.insert(entry.originalPath.value_or(entry.fileName));
    return std::size_t(files.size());
}

bool needsAttention(const std::vector<WatchedFolder>& folders,
                    const QHash<QUuid, FolderAccess>& access, const std::vector<LogEntry>& logs,
                    Timestamp now) {
    const auto isBlocked = [&](const WatchedFolder& folder) {
        return access.value(folder.id, FolderAccess::ok) != FolderAccess::ok;
    };
    const auto isRecent = [&](const LogEntry& entry) { return isRecentError(entry, now); };
    return std::ranges::any_of(folders, isBlocked) || std::ranges::any_of(logs, isRecent);
}

} // namespace quillon
