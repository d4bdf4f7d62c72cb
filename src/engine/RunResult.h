#pragma once

#include "model/LogEntry.h"
#include "platform/Error.h"

#include <QSet>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// A file that a rule has acted on.
struct HandledFile {
    QUuid ruleID;
    QString keyBefore = {};    ///< the file's key as listed; see fileKey
    QString keyAfter = {};     ///< its key where it is now; empty when it is gone
    QStringList copyKeys = {}; ///< the keys of the copies that were made of it

    bool operator==(const HandledFile&) const = default;
};

/// A file for which a rule could do nothing at all.
struct FailedFile {
    QUuid ruleID;
    QString key; ///< as listed

    bool operator==(const FailedFile&) const = default;
};

/// The outcome of a batch.
struct RunResult {
    std::vector<LogEntry> entries; ///< one a file, in the order in which they were handled
    /// Of every file of the batch; empty for a folder without an identity.
    QSet<QString> seenKeys;
    QStringList waiting;              ///< names of files that wait for the assistant
    QSet<QString> waitingKeys;        ///< of those files; empty for a folder without an identity
    std::vector<HandledFile> handled; ///< where something was done; empty likewise
    std::vector<FailedFile> failed;   ///< empty likewise
    bool interrupted = false;         ///< EngineSettings::mayContinue ended the run early
    /// Set when the journal could not be written and the run ended early.
    std::optional<Error> stopped;
};

/// What one rule would catch in one folder.
struct MatchProbe {
    QStringList matches; ///< last path components, in listing order
    std::size_t tested = 0;
};

/// What a run now would do to one file.
struct PreviewItem {
    QString fileName;
    QString ruleName;
    QStringList actions;
};

} // namespace quillon
