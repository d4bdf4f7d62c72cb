#pragma once

#include "engine/RunJournal.h"
#include "platform/Storage.h"

#include <QSet>
#include <QUuid>

#include <memory>
#include <mutex>
#include <string>

namespace quillon {

class JournalledRun;

/// The journal of runs whose results are not in the state file yet: intents are on the disk before
/// anything is done, outcomes survive the end of the process. Several runs may write side by side,
/// each through a JournalledRun of its own. Any thread.
class UndoJournal {
public:
    /// `temporaryTag` is the one that this process's hidden temporaries carry.
    UndoJournal(std::unique_ptr<AppendFile> file, std::string temporaryTag)
        : file_(std::move(file)), temporaryTag_(std::move(temporaryTag)) {}

    /// A run that is open for as long as the object lives: let go of it only when what it has done
    /// is in the state that will be saved. The journal outlives it.
    [[nodiscard]] std::unique_ptr<JournalledRun> beginRun();

    /// Notes, durably, that the state file is about to be rewritten without what the file that was
    /// read at launch holds beside its folders: until the next save that is in
    /// "store.json.previous".
    [[nodiscard]] Expected<void> noteLaunch();

    /// To be called once the state file holds what the runs that have ended have done. While
    /// another run is open, the journal notes that these are saved; otherwise it is emptied. Until
    /// it has succeeded, no further intents are taken.
    [[nodiscard]] Expected<void> markSaved();

    /// Whether runs have ended that no save has marked: until one does, the journal only grows.
    [[nodiscard]] bool awaitsSave();

private:
    friend class JournalledRun;

    [[nodiscard]] Expected<void> intend(const QUuid& run, std::span<const Intent> intents,
                                        bool isUndo);
    void record(const QUuid& run, const LogEntry& entry);
    void end(const QUuid& run);
    [[nodiscard]] Expected<void> mark();

    std::unique_ptr<AppendFile> file_;
    std::string temporaryTag_;
    std::mutex lock_;
    QSet<QUuid> open_;  ///< those that have written something
    QSet<QUuid> ended_; ///< since the last save
    QSet<QUuid> saved_; ///< and not marked yet
    bool isLaunchNoted_ = false;
    bool hasHeader_ = false;
    bool isMarkDue_ = false;
};

/// What one run, or one undo, writes down. One thread at a time.
class JournalledRun final : public RunJournal {
public:
    ~JournalledRun() override;

    [[nodiscard]] Expected<void> intend(std::span<const Intent> intents) override;

    /// What has happened to an intended file so far. For an entry that is taken back, that it is:
    /// `currentPath` is where its file is now.
    void record(const LogEntry& entry) override;

    /// The entries that are about to be taken back, with the status of what stands at their place;
    /// durable when it returns. `targetFolders` are the folders into which they go.
    [[nodiscard]] Expected<void> intendUndo(std::span<const Intent> intents);

private:
    friend class UndoJournal;
    explicit JournalledRun(UndoJournal& journal) : journal_(journal) {}

    UndoJournal& journal_;
    QUuid id_ = QUuid::createUuid();
};

} // namespace quillon
