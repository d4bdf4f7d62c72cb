#pragma once

#include "platform/FileSystem.h"
#include "platform/Trash.h"
#include "store/PersistedState.h"

#include <vector>

namespace quillon {

/// What came of taking back one entry.
struct UndoOutcome {
    LogEntry entry;
    Expected<std::string> restored; ///< where the file is now
    QString note; ///< what a person should know though it worked; empty when nothing
};

/// Takes entries of the log back: moves what stands where an entry says to where it was, or to a
/// numbered name beside that, and drops the entry. An entry that can't be taken back stays.
class Undo {
public:
    /// Borrows all three.
    Undo(FileSystem& fileSystem, Trash& trash, PersistedState& state)
        : fileSystem_(fileSystem), trash_(trash), state_(state) {}

    [[nodiscard]] UndoOutcome entry(const LogEntry& entry);

    /// The newest entry that can be undone: one whose file is where the entry says, if there is
    /// any.
    [[nodiscard]] std::optional<LogEntry> newest() const;

    /// The batch's undoable entries, in log order, except that a file whose old place is still
    /// taken by another file of the batch waits for that one. Empty when there is nothing to undo.
    [[nodiscard]] std::vector<UndoOutcome> batch(const QUuid& batchID);

private:
    [[nodiscard]] Expected<std::string> putBack(const LogEntry& entry, QString& note);

    FileSystem& fileSystem_;
    Trash& trash_;
    PersistedState& state_;
};

[[nodiscard]] bool canBeUndone(const LogEntry& entry);

} // namespace quillon
