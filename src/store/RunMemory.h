#pragma once

#include "engine/RunRestraint.h"
#include "engine/RunResult.h"
#include "model/WatchedFolder.h"

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>

#include <memory>
#include <vector>

namespace quillon {

/// What automatic runs must not do again: a rule leaves a file alone once it has acted on it, until
/// the file or the rule changes; and rules that hand a file round between folders are stopped after
/// the third lap. One thread; a restraint is a copy that another thread may use.
class RunMemory {
public:
    /// For an automatic run of the folder. Entries for the files that it stopped because they go
    /// round in a ring come out of absorb().
    [[nodiscard]] std::unique_ptr<RunRestraint> restraint(const WatchedFolder& folder) const;

    /// Takes in what a run, automatic or asked for, has done. `now` is the date of the error
    /// entries that are returned: one for each file that has been stopped in a ring just now,
    /// naming the rules and their folders.
    [[nodiscard]] std::vector<LogEntry> absorb(const WatchedFolder& folder, const RunResult& run,
                                               const RunRestraint* restraint, Timestamp now);

    /// Drops what is remembered of folders that are not among these.
    void keepOnly(const std::vector<WatchedFolder>& folders);

    /// What outlives the process: the files that were acted on, not the laps.
    [[nodiscard]] QByteArray encode() const;
    /// Starts anew from what encode() gave; anything else is an empty memory.
    void decode(const QByteArray& bytes);
    /// Whether encode() would give something else than at the last call of it.
    [[nodiscard]] bool hasChanged() const { return changed_; }

private:
    mutable bool changed_ = false;
};

} // namespace quillon
