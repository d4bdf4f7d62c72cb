#include "store/UndoJournal.h"

#include "store/JournalFormat.h"

namespace quillon {

Expected<void> UndoJournal::intend(std::span<const Intent> intents) {
    // Old records before new ones would make a recovery take the new ones for saved.
    if (clearFailed_)
        if (auto cleared = clear(); !cleared)
            return cleared;

    JsonStream json;
    if (isEmpty_)
        writeJournalHeader(json, temporaryTag_);
    for (const Intent& intent : intents)
        writeIntent(json, intent);
    if (auto appended = file_->append(json.take()); !appended)
        return appended;
    isEmpty_ = false;
    return file_->sync();
}

void UndoJournal::record(const LogEntry& entry) {
    JsonStream json;
    writeOutcome(json, entry);
    // What can't be written is not lost: the run still holds it, and after a crash a recovery finds
    // the file by its intent.
    std::ignore = file_->append(json.take());
}

Expected<void> UndoJournal::clear() {
    auto cleared = file_->clear();
    clearFailed_ = !cleared;
    isEmpty_ = isEmpty_ || cleared.has_value();
    return cleared;
}

} // namespace quillon
