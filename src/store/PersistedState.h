#pragma once

#include "model/JsonReader.h"
#include "model/LogEntry.h"
#include "model/WatchedFolder.h"

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QSet>

#include <vector>

namespace quillon {

/// How many entries the activity log keeps.
inline constexpr std::size_t logCap = 500;

/// Everything that outlives the process.
struct PersistedState {
    std::vector<WatchedFolder> folders;
    std::vector<LogEntry> logs;                   ///< newest first
    QHash<QString, QSet<QString>> processedFiles; ///< file keys by folder UUID, upper-case
    bool isPaused = false;
    QJsonObject other; ///< top-level keys of a newer version, kept as they are

    bool operator==(const PersistedState&) const = default;

    /// Whether there is nothing but folders, as in a state file just rewritten at launch.
    [[nodiscard]] bool hasOnlyFolders() const;
    /// What a state file rewritten at launch holds.
    [[nodiscard]] PersistedState foldersOnly() const;
    /// Takes from that file's predecessor what foldersOnly() leaves out.
    void takeHistory(PersistedState previous);

    /// Puts a run's entries in front, in the order in which they happened, and drops what is past
    /// the cap.
    void addLogs(std::vector<LogEntry> entries);
};

[[nodiscard]] QByteArray encodeState(const PersistedState& state);

/// Fails with `invalid` and a message that names the key. `now` stands in for the date of an entry
/// without one.
[[nodiscard]] Expected<PersistedState> decodeState(const QByteArray& bytes, Timestamp now);

} // namespace quillon
