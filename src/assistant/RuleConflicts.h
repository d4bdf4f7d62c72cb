#pragma once

#include "model/LogEntry.h"
#include "model/WatchedFolder.h"
#include "platform/Platform.h"

#include <QString>
#include <QUuid>

#include <vector>

namespace quillon {

class DobbinJudge;

/// A file that an earlier rule of a folder moved away before a later one, which it matches too,
/// came to see it.
struct RuleConflict {
    QString fileName;
    QUuid folderID;
    QString folderName;
    QUuid earlierID;
    QString earlierName;
    QUuid laterID;
    QString laterName;

    bool operator==(const RuleConflict&) const = default;

    [[nodiscard]] QString sentence() const;
};

/// The conflicts among the first 25 entries, in their order, at most 25. Later rules that are on
/// are held against the file where it lies now, under the name and in the folder that it had; where
/// it lies nowhere any more, only rules about its name are. What Dobbin says of it is looked up,
/// never asked. A rule about a tag that the earlier rule changed is passed over. Looks at the disk:
/// a background thread.
[[nodiscard]] std::vector<RuleConflict> conflicts(const std::vector<LogEntry>& entries,
                                                  const std::vector<WatchedFolder>& folders,
                                                  const Platform& platform,
                                                  const DobbinJudge& judge);

} // namespace quillon
