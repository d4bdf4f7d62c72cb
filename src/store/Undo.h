#pragma once

#include "engine/RuleEngine.h"
#include "model/LogEntry.h"
#include "platform/FileSystem.h"
#include "platform/Trash.h"
#include "store/UndoJournal.h"

#include <functional>
#include <optional>
#include <vector>

namespace quillon {

/// What came of taking back one entry.
struct UndoOutcome {
    LogEntry entry;
    Expected<std::string> restored; ///< where the file is now
    QString note; ///< what a person should know though it worked; empty when nothing
};

/// Takes entries of the log back: moves what stands where an entry says to where it was, or to a
/// numbered name beside that. The log itself is the caller's to change. One thread at a time.
class Undo {
public:
    /// Borrows all three.
    Undo(FileSystem& fileSystem, Trash& trash, JournalledRun& journal)
        : fileSystem_(fileSystem), trash_(trash), journal_(journal) {}

    /// In the order given, which is the log's, except that a file whose old place is still taken by
    /// another of these waits for that one. One outcome an entry; an entry that can't be undone has
    /// a failure. `mayContinue` is asked before each; what comes after a false is left out.
    [[nodiscard]] std::vector<UndoOutcome> run(std::vector<LogEntry> entries,
                                               const Progress& progress = {},
                                               const std::function<bool()>& mayContinue = {});

private:
    /// An entry to be taken back, and what stood at its place when that was written down.
    struct Task {
        LogEntry entry;
        std::optional<FileStatus> intended = std::nullopt;
    };

    [[nodiscard]] Expected<void> intend(std::span<Task> tasks);
    [[nodiscard]] UndoOutcome takeBack(Task& task);
    [[nodiscard]] Expected<Placement> putBack(Task& task, QString& note);

    FileSystem& fileSystem_;
    Trash& trash_;
    JournalledRun& journal_;
};

/// The newest entry that can be undone: one whose file is where the entry says, if there is any.
[[nodiscard]] std::optional<LogEntry> newestUndoable(const std::vector<LogEntry>& logs,
                                                     const FileSystem& fileSystem);

/// The batch's entries that can be undone, in log order.
[[nodiscard]] std::vector<LogEntry> undoableOfBatch(const std::vector<LogEntry>& logs,
                                                    const QUuid& batchID);

[[nodiscard]] bool canBeUndone(const LogEntry& entry);

} // namespace quillon
