#include "store/StoreSession.h"

#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::uint64_t largestJournal = 1ULL << 34;

} // namespace

StoreSession::StoreSession(const StorePlaces& places, const Services& services)
    : services_(services), stateFile_(services.storage, places.state()) {}

Expected<std::unique_ptr<StoreSession>> StoreSession::open(const StorePlaces& places,
                                                           const Services& services) {
    std::unique_ptr<StoreSession> session(new StoreSession(places, services));
    if (auto opened = session->openFiles(places); !opened)
        return std::unexpected(opened.error());
    return session;
}

Expected<void> StoreSession::openFiles(const StorePlaces& places) {
    const QString what = u"Quillon's data folder %1 can't be used"_s.arg(pathText(places.folder));
    if (auto made = services_.fileSystem.makeFolders(places.folder); !made)
        return failedTo(what, made.error());
    auto lock = waitForStoreLock(services_.storage, places.lock(), services_.pause);
    if (!lock)
        return lock.error().kind == ErrorKind::timedOut ? std::unexpected(lock.error())
                                                        : failedTo(what, lock.error());
    lock_ = std::move(*lock);

    auto loaded = stateFile_.load(services_.clock.now());
    if (!loaded)
        return std::unexpected(loaded.error());
    state_ = std::move(loaded->state);
    if (loaded->warning)
        warnings_.append(*loaded->warning);

    auto file = services_.storage.openAppend(places.journal());
    if (!file)
        return failedTo(what, file.error());
    journal_ = std::make_unique<UndoJournal>(std::move(*file), services_.temporaryTag);
    return recover(places.journal());
}

Expected<void> StoreSession::recover(const std::string& journalPath) {
    const Expected<QByteArray> bytes = services_.storage.readWhole(journalPath, largestJournal);
    if (!bytes)
        return failedTo(u"The journal %1 can't be read"_s.arg(pathText(journalPath)),
                        bytes.error());
    if (bytes->isEmpty())
        return {};

    const JournalContents journal = readJournal(*bytes);
    std::vector<LogEntry> entries =
        recoveredEntries(journal, state_.logs, services_.fileSystem, services_.trashPlaces);
    if (!entries.empty())
        warnings_.append(
            u"An earlier run was interrupted; what it did to %1 is now in the activity log"_s.arg(
                counted(entries.size(), u"file"_s)));
    if (journal.unreadableLines > 0)
        warnings_.append(u"%1 of the journal could not be read"_s.arg(
            counted(journal.unreadableLines, u"line"_s)));
    state_.addLogs(std::move(entries));
    if (!journal.temporaryTag.empty())
        for (const std::string& folder : touchedFolders(journal))
            // A folder that is away keeps what is in it; hidden leftovers harm nobody.
            std::ignore = services_.storage.removeTemporaries(folder, journal.temporaryTag);
    if (auto saved = save(); !saved)
        return failedTo(u"The activity log can't be saved"_s, saved.error());
    return {};
}

Expected<void> StoreSession::save() {
    if (auto saved = stateFile_.save(state_); !saved)
        return saved;
    // Records that stay are recognised as saved, and no new ones come after them.
    std::ignore = journal_->clear();
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
    auto state = StateFile(services.storage, places.state()).read(services.clock.now());
    if (!state)
        return failedTo(u"%1 can't be read"_s.arg(pathText(places.state())), state.error());
    return StoreView{std::move(*state), {}};
}

} // namespace quillon
