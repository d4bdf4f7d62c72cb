#pragma once

#include "engine/RunResult.h"
#include "model/WatchedFolder.h"
#include "store/FolderDeeds.h"
#include "store/FolderRestraint.h"
#include "store/RecentFailures.h"
#include "store/RingWatch.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

namespace quillon {

/// The size of the file that encode() fills, at most.
inline constexpr std::uint64_t largestMemory = 1ULL << 30;

/// What automatic runs must not do again: a rule leaves a file alone once it has acted on it, until
/// the file or the rule changes, and for an hour when it failed; and rules that hand a file round
/// between folders are stopped after the third lap. One thread; a restraint is a copy that another
/// thread may use.
class RunMemory {
public:
    /// For an automatic run of the folder.
    [[nodiscard]] std::unique_ptr<FolderRestraint> restraint(const WatchedFolder& folder,
                                                             Timestamp now) const;

    /// Takes in what a run of the folder, with these rules, has done: an automatic one with its
    /// restraint, one that the user asked for without any. `now` is the date of the error entries
    /// that are returned: one for each file that was stopped in a ring, naming the rules and their
    /// folders. Later runs leave such a file alone without a word.
    [[nodiscard]] std::vector<LogEntry> absorb(const WatchedFolder& folder, const RunResult& run,
                                               const FolderRestraint* restraint, Timestamp now);

    /// A file as it is now, with the rule of a folder, by its name, that has acted on it.
    struct ActedOn {
        QUuid folderID;
        QString ruleName;
        QString fileKey;
    };
    /// Keeps automatic runs of these rules from acting on these files again. `folders` are those
    /// that are watched.
    void leaveAlone(const std::vector<ActedOn>& files, const std::vector<WatchedFolder>& folders,
                    Timestamp now);

    /// To be told the watched folders at the start and whenever they change: files are followed
    /// from one of them to another, and what is remembered of any other is dropped.
    void keepOnly(const std::vector<WatchedFolder>& folders);

    /// What outlives the process: the files that were acted on, not the laps nor the failures.
    [[nodiscard]] QByteArray encode() const;
    /// Starts anew from what encode() gave; anything else is an empty memory.
    void decode(const QByteArray& bytes);
    /// Whether encode() would give something else than at the last call of it.
    [[nodiscard]] bool hasChanged() const { return changed_; }

private:
    struct Place {
        QString path; ///< without a slash at its end
        bool isRecursive = false;

        [[nodiscard]] bool holds(QStringView file) const;
    };
    [[nodiscard]] static Place placeOf(const WatchedFolder& folder);
    [[nodiscard]] bool liesInAnother(QStringView file, const QUuid& folderID) const;

    void handle(const HandledFile& file, const RingParty& party, bool isAutomatic, Timestamp now);
    void stopRing(const WatchedFolder& folder, const Rule& rule, const RingParty& party,
                  const QString& fileKey, Timestamp now, std::vector<LogEntry>& entries);
    void prune(const QUuid& folderID, const RunResult& run, const QSet<std::uint64_t>& rules,
               Timestamp now);

    QHash<QUuid, FolderDeeds> deeds_;
    QHash<QUuid, RecentFailures> failures_;
    RingWatch rings_;
    QHash<QUuid, Place> places_;
    QHash<QUuid, QHash<std::uint64_t, QString>> names_; ///< of rules, as a person is told of them
    mutable bool changed_ = false;
};

} // namespace quillon
