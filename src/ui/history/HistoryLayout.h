#pragma once

#include "model/LogEntry.h"
#include "model/WatchedFolder.h"
#include "ui/history/HistoryFilter.h"
#include "ui/history/HistoryRow.h"

#include <QHash>
#include <QSet>

#include <vector>

namespace quillon {

/// How far the taking back of a batch has come.
struct UndoProgress {
    std::size_t done = 0;
    std::size_t total = 0;
};

/// What the rows are made from. Borrows the lists.
struct HistorySource {
    const std::vector<LogEntry>& logs; ///< newest first
    const std::vector<WatchedFolder>& folders;
    const HistoryFilter& filter;
    /// Those that are not as they are by themselves: closed, or open while something is looked for.
    const QSet<QUuid>& turnedBatches;
    const QHash<QUuid, UndoProgress>& undoing;
    Timestamp now;
};

struct HistoryDay {
    QString day; ///< as in the rows
    QString heading;
    QString count; ///< of its entries, those of closed batches too
};

struct HistoryLayout {
    std::vector<HistoryRow> rows;
    std::vector<HistoryDay> days;
    std::size_t errorCount = 0; ///< that the filter would show if it asked for errors
};

/// The rows of the log, newest first. Entries of one batch come together where its newest one is; a
/// batch of which one entry is left is that entry.
[[nodiscard]] HistoryLayout layOutHistory(const HistorySource& source);

/// Under which a batch is found among the rows.
[[nodiscard]] QString batchKey(const QUuid& batchID);

} // namespace quillon
