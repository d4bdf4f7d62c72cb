#pragma once

#include "engine/RunRestraint.h"
#include "model/WatchedFolder.h"
#include "store/FolderDeeds.h"
#include "store/RecentFailures.h"
#include "store/RingWatch.h"

#include <QHash>
#include <QString>
#include <QUuid>

#include <vector>

namespace quillon {

/// What one automatic run of a folder must leave alone, as it was known when the run began.
class FolderRestraint final : public RunRestraint {
public:
    /// What the memory knows when the run begins.
    struct Known {
        FolderDeeds deeds;
        RecentFailures failures;
        RingWatch rings;
        Timestamp now;
    };

    FolderRestraint(const WatchedFolder& folder, Known known);

    [[nodiscard]] bool hasActed(const Rule& rule, const QString& fileKey) const override;
    [[nodiscard]] bool mayAct(const Rule& rule, const QString& fileKey) override;

    /// A file that was refused because rules hand it round.
    struct Stop {
        QUuid ruleID;
        QString fileKey;
    };
    [[nodiscard]] const std::vector<Stop>& stops() const { return stops_; }

private:
    QUuid folderID_;
    QHash<QUuid, std::uint64_t> rules_; ///< hashes by id
    Known known_;
    std::vector<Stop> stops_;
};

} // namespace quillon
