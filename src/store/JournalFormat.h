#pragma once

#include "engine/RunJournal.h"
#include "store/JsonStream.h"

#include <QByteArray>

#include <string>
#include <vector>

namespace quillon {

/// What the journal tells about one file.
struct JournalledFile {
    Intent intent;
    bool hasOutcome = false; ///< some action has finished; its result is in `intent.entry`
};

struct JournalContents {
    std::string temporaryTag; ///< marks the hidden temporaries of the run; empty when unknown
    std::vector<JournalledFile> files; ///< in the order in which they were intended
    std::size_t unreadableLines = 0;   ///< not counting a last line that was cut short
};

/// One line a record, each with its line break.
void writeJournalHeader(JsonStream& json, std::string_view temporaryTag);
void writeIntent(JsonStream& json, const Intent& intent);
void writeOutcome(JsonStream& json, const LogEntry& entry);

/// Never fails: a line that can't be read is passed over and counted.
[[nodiscard]] JournalContents readJournal(const QByteArray& bytes);

} // namespace quillon
