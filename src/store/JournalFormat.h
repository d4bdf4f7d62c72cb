#pragma once

#include "engine/RunJournal.h"
#include "store/JsonStream.h"

#include <QByteArray>
#include <QSet>
#include <QUuid>

#include <string>
#include <vector>

namespace quillon {

/// What the journal tells about one file.
struct JournalledFile {
    Intent intent;
    QUuid run = {};          ///< null in journals of versions that had one run at a time
    bool isUndo = false;     ///< the entry was to be taken back
    bool hasOutcome = false; ///< something has been done; its result is in `intent.entry`
};

struct JournalContents {
    std::string temporaryTag; ///< marks the hidden temporaries of the run; empty when unknown
    std::vector<JournalledFile> files; ///< in the order intended, without those of saved runs
    /// The state file may be without what "store.json.previous" holds.
    bool isLaunchNoted = false;
    std::size_t unreadableLines = 0; ///< not counting a last line that was cut short
};

/// One line a record, each with its line break.
void writeJournalHeader(JsonStream& json, std::string_view temporaryTag);
void writeIntent(JsonStream& json, const QUuid& run, const Intent& intent, bool isUndo);
void writeOutcome(JsonStream& json, const QUuid& run, const LogEntry& entry);
void writeLaunch(JsonStream& json);
void writeSaved(JsonStream& json, const QSet<QUuid>& runs);

/// Never fails: a line that can't be read is passed over and counted.
[[nodiscard]] JournalContents readJournal(const QByteArray& bytes);

} // namespace quillon
