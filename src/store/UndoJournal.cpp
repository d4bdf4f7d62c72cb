#include "store/UndoJournal.h"

#include "store/JournalFormat.h"

namespace quillon {

std::unique_ptr<JournalledRun> UndoJournal::beginRun() {
    return std::unique_ptr<JournalledRun>(new JournalledRun(*this));
}

Expected<void> UndoJournal::noteLaunch() {
    const std::lock_guard guard(lock_);
    if (isMarkDue_)
        if (auto marked = mark(); !marked)
            return marked;
    JsonStream json;
    writeLaunch(json);
    if (auto appended = file_->append(json.take()); !appended)
        return appended;
    isLaunchNoted_ = true;
    return file_->sync();
}

Expected<void> UndoJournal::markSaved() {
    const std::lock_guard guard(lock_);
    saved_.unite(ended_);
    ended_.clear();
    isMarkDue_ = true;
    return mark();
}

bool UndoJournal::awaitsSave() {
    const std::lock_guard guard(lock_);
    return !ended_.isEmpty();
}

Expected<void> UndoJournal::mark() {
    if (open_.isEmpty() && ended_.isEmpty()) {
        if (auto cleared = file_->clear(); !cleared)
            return cleared;
        hasHeader_ = false;
    } else if (!saved_.isEmpty() || isLaunchNoted_) {
        JsonStream json;
        writeSaved(json, saved_);
        if (auto appended = file_->append(json.take()); !appended)
            return appended;
        if (auto synced = file_->sync(); !synced)
            return synced;
    }
    saved_.clear();
    isLaunchNoted_ = false;
    isMarkDue_ = false;
    return {};
}

Expected<void> UndoJournal::intend(const QUuid& run, std::span<const Intent> intents, bool isUndo) {
    const std::lock_guard guard(lock_);
    // Records of what is saved already, left unmarked, would be taken for unsaved once the log has
    // moved on.
    if (isMarkDue_)
        if (auto marked = mark(); !marked)
            return marked;

    JsonStream json;
    if (!hasHeader_)
        writeJournalHeader(json, temporaryTag_);
    for (const Intent& intent : intents)
        writeIntent(json, run, intent, isUndo);
    if (auto appended = file_->append(json.take()); !appended)
        return appended;
    hasHeader_ = true;
    open_.insert(run);
    return file_->sync();
}

void UndoJournal::record(const QUuid& run, const LogEntry& entry) {
    JsonStream json;
    writeOutcome(json, run, entry);
    const std::lock_guard guard(lock_);
    // What can't be written is not lost: the run still holds it, and after a crash a recovery finds
    // the file by its intent.
    std::ignore = file_->append(json.take());
}

void UndoJournal::end(const QUuid& run) {
    const std::lock_guard guard(lock_);
    if (open_.remove(run))
        ended_.insert(run);
}

JournalledRun::~JournalledRun() {
    journal_.end(id_);
}

Expected<void> JournalledRun::intend(std::span<const Intent> intents) {
    return journal_.intend(id_, intents, false);
}

void JournalledRun::record(const LogEntry& entry) {
    journal_.record(id_, entry);
}

Expected<void> JournalledRun::intendUndo(std::span<const Intent> intents) {
    return journal_.intend(id_, intents, true);
}

} // namespace quillon
