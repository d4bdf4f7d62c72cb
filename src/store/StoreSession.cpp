#include "store/StoreSession.h"

#include "engine/RuleEngine.h"
#include "store/RunMemory.h"
#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::uint64_t largestJournal = 1ULL << 34;

} // namespace

StoreSession::StoreSession(const StorePlaces& places, const Services& services)
    : services_(services), places_(places), stateFile_(services.storage, places.state()) {}

Expected<std::unique_ptr<StoreSession>> StoreSession::open(const StorePlaces& places,
                                                           const Services& services) {
    std::unique_ptr<StoreSession> session(new StoreSession(places, services));
    if (auto opened = session->openFiles(); !opened)
        return std::unexpected(opened.error());
    return session;
}

Expected<void> StoreSession::openFiles() {
    const QString what = u"Quillon's data folder %1 can't be used"_s.arg(pathText(places_.folder));
    if (auto made = services_.fileSystem.makeFolders(places_.folder); !made)
        return failedTo(what, made.error());
    auto lock = waitForStoreLock(services_.storage, places_.lock(), services_.pause);
    if (!lock)
        return lock.error().kind == ErrorKind::timedOut ? std::unexpected(lock.error())
                                                        : failedTo(what, lock.error());
    lock_ = std::move(*lock);
    // Whoever was killed in the middle of a save left the new file behind, hidden.
    std::ignore = services_.storage.removeTemporaries(places_.folder, "own");

    auto loaded = stateFile_.load(services_.clock.now());
    if (!loaded)
        return std::unexpected(loaded.error());
    state_ = std::move(loaded->state);
    if (loaded->warning)
        warnings_.append(*loaded->warning);

    auto file = services_.storage.openAppend(places_.journal());
    if (!file)
        return failedTo(what, file.error());
    journal_ = std::make_unique<UndoJournal>(std::move(*file), services_.temporaryTag);
    return recover();
}

Expected<void> StoreSession::recover() {
    const Expected<QByteArray> bytes =
        services_.storage.readWhole(places_.journal(), largestJournal);
    if (!bytes)
        return failedTo(u"The journal %1 can't be read"_s.arg(pathText(places_.journal())),
                        bytes.error());
    if (bytes->isEmpty())
        return {};

    const JournalContents journal = readJournal(*bytes);
    if (journal.unreadableLines > 0)
        warnings_.append(u"%1 of the journal could not be read"_s.arg(
            counted(journal.unreadableLines, u"line"_s)));
    if (journal.isLaunchNoted && state_.hasOnlyFolders())
        if (auto taken = takeHistory(); !taken)
            return taken;
    takeIn(journal);
    if (auto saved = save(); !saved)
        return failedTo(u"The activity log can't be saved"_s, saved.error());
    return {};
}

Expected<void> StoreSession::takeHistory() {
    auto previous = StateFile(services_.storage, places_.previous()).load(services_.clock.now());
    if (!previous)
        return std::unexpected(previous.error());
    if (previous->warning)
        warnings_.append(*previous->warning);
    state_.takeHistory(std::move(previous->state));
    return {};
}

void StoreSession::takeIn(const JournalContents& journal) {
    std::vector<LogEntry> entries =
        recoveredEntries(journal, state_.logs, services_.fileSystem, services_.trashPlaces);
    const std::size_t found = entries.size();
    remember(entries);
    state_.addLogs(std::move(entries));
    if (found > 0)
        warnings_.append(
            u"An earlier run was interrupted; what it did to %1 is now in the activity log"_s.arg(
                counted(found, u"file"_s)));
    if (found > logCap)
        warnings_.append(
            u"The log keeps %1 entries, so undo does not reach %2 of these files"_s.arg(
                QString::number(logCap), QString::number(found - logCap)));
    const std::vector<LogEntry> takenBack =
        dropTakenBack(journal, state_.logs, services_.fileSystem);
    remember(takenBack);
    if (!takenBack.empty())
        warnings_.append(
            u"An earlier undo was interrupted; %1 that it had put back is no longer in the "
            "activity log"_s.arg(counted(takenBack.size(), u"file"_s)));
    if (!journal.temporaryTag.empty())
        for (const std::string& folder : touchedFolders(journal))
            // A folder that is away keeps what is in it; hidden leftovers harm nobody.
            std::ignore = services_.storage.removeTemporaries(folder, journal.temporaryTag);
}

/// What was interrupted had done with these files what was wanted: no rule is to act on them again
/// by itself.
void StoreSession::remember(const std::vector<LogEntry>& entries) {
    std::vector<RunMemory::ActedOn> files;
    for (const LogEntry& entry : entries) {
        if (entry.isError || !entry.folderID || !entry.currentPath)
            continue;
        const std::string path = entry.currentPath->toStdString();
        if (const auto status = services_.fileSystem.status(path))
            files.push_back({.folderID = *entry.folderID,
                             .ruleName = entry.ruleName,
                             .fileKey = fileKey(path, *status)});
    }
    if (files.empty())
        return;
    const auto bytes = services_.storage.readWhole(places_.memory(), largestMemory);
    if (!bytes && bytes.error().kind != ErrorKind::notFound)
        return;
    RunMemory memory;
    memory.decode(bytes.value_or(QByteArray()));
    memory.keepOnly(state_.folders);
    memory.leaveAlone(files, state_.folders, services_.clock.now());
    // Without it a rule acts once more, which is no reason to keep the store closed.
    std::ignore = services_.storage.writeDurably(places_.memory(), memory.encode());
}

Expected<void> StoreSession::rewriteAtLaunch() {
    const auto kept = stateFile_.keepAs(places_.previous());
    if (!kept)
        return failedTo(u"%1 can't be written"_s.arg(pathText(places_.previous())), kept.error());
    if (!*kept)
        return {};
    if (auto noted = journal_->noteLaunch(); !noted)
        return failedTo(u"The journal can't be written"_s, noted.error());
    return stateFile_.save(state_.foldersOnly());
}

Expected<void> StoreSession::save() {
    if (auto saved = stateFile_.save(state_); !saved)
        return saved;
    // Records that stay are recognised as saved, and no new ones come after them.
    std::ignore = journal_->markSaved();
    return {};
}

Expected<StoreView> viewStore(const StorePlaces& places, const StoreSession::Services& services) {
    const Expected<QByteArray> journal =
        services.storage.readWhole(places.journal(), largestJournal);
    const bool isInterrupted = journal && !journal->isEmpty();
    if (isInterrupted) {
        // Whoever holds the lock is writing that journal now.
        auto lock = services.storage.tryLock(places.lock());
        const bool isFree = lock.has_value();
        if (isFree) {
            lock->reset();
            auto session = StoreSession::open(places, services);
            if (!session)
                return std::unexpected(session.error());
            return StoreView{(*session)->state(), (*session)->warnings()};
        }
    }
    const Timestamp now = services.clock.now();
    auto state = StateFile(services.storage, places.state()).read(now);
    if (!state)
        return failedTo(u"%1 can't be read"_s.arg(pathText(places.state())), state.error());
    StoreView view{std::move(*state), {}};
    if (!view.state.hasOnlyFolders() || !journal || !readJournal(*journal).isLaunchNoted)
        return view;
    auto previous = StateFile(services.storage, places.previous()).read(now);
    if (!previous)
        return failedTo(u"%1 can't be read"_s.arg(pathText(places.previous())), previous.error());
    view.state.takeHistory(std::move(*previous));
    return view;
}

} // namespace quillon
