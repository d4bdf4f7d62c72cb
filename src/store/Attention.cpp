#include "store/Attention.h"

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

bool needsAttention(const QHash<QUuid, FolderAccess>& access, const std::vector<LogEntry>& logs,
                    Timestamp now) {
    return std::ranges::any_of(access, [](FolderAccess a) { return a != FolderAccess::ok; }) ||
           std::ranges::any_of(logs, [&](const LogEntry& e) { return isRecentError(e, now); });
}

} // namespace quillon
