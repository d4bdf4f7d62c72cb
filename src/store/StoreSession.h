#pragma once

#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "store/JournalRecovery.h"
#include "store/StateFile.h"
#include "store/StoreLock.h"
#include "store/StorePlaces.h"
#include "store/UndoJournal.h"

#include <functional>
#include <memory>

namespace quillon {

/// The store opened for changing by one process: the lock is held for as long as the session lives,
/// and what an interrupted run left behind has been taken in.
class StoreSession {
public:
    /// Everything borrowed for the session's life.
    struct Services {
        Storage& storage;
        FileSystem& fileSystem;
        const Clock& clock;
        std::function<void(std::chrono::milliseconds)> pause;
        TrashPlaces trashPlaces;
        std::string temporaryTag;
    };

    /// Makes the data folder where there is none. Fails with `timedOut` when another process holds
    /// the store, otherwise when something of it can't be read or written.
    [[nodiscard]] static Expected<std::unique_ptr<StoreSession>> open(const StorePlaces& places,
                                                                      const Services& services);

    [[nodiscard]] PersistedState& state() { return state_; }
    [[nodiscard]] UndoJournal& journal() { return *journal_; }
    /// Sentences about what was found when the store was opened.
    [[nodiscard]] const QStringList& warnings() const { return warnings_; }

    /// To be called once, by a process that lives on: keeps the file that was read as
    /// "store.json.previous", notes that in the journal, and rewrites the state file with the
    /// folders alone. The state in memory stays as it is. When it fails, the file is as it was.
    [[nodiscard]] Expected<void> rewriteAtLaunch();

    /// Saves the state durably, then marks the ended runs in the journal as saved. A state that is
    /// the one on the disk already is not written again.
    [[nodiscard]] Expected<void> save();

private:
    StoreSession(const StorePlaces& places, const Services& services);

    [[nodiscard]] Expected<void> openFiles();
    [[nodiscard]] Expected<void> recover();
    [[nodiscard]] Expected<void> takeHistory();
    void takeIn(const JournalContents& journal);
    void remember(const std::vector<LogEntry>& entries);

    Services services_;
    StorePlaces places_;
    StateFile stateFile_;
    std::unique_ptr<FileLock> lock_;
    PersistedState state_;
    std::unique_ptr<UndoJournal> journal_;
    QStringList warnings_;
};

/// What a command that only reads sees.
struct StoreView {
    PersistedState state;
    QStringList warnings;
};

/// Reads the state without changing anything and without waiting, unless an interrupted run has
/// left a journal and nobody is at work: then that is taken in first. Fails with `invalid` when the
/// state can't be decoded.
[[nodiscard]] Expected<StoreView> viewStore(const StorePlaces& places,
                                            const StoreSession::Services& services);

} // namespace quillon
