#pragma once

#include "model/LogEntry.h"
#include "model/WatchedFolder.h"
#include "platform/SystemNames.h"
#include "store/FolderAccess.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

namespace quillon {

inline constexpr QStringView diagnosticsFileName = u"Quillon Diagnostics.txt";

/// What of the machine the report names.
struct DiagnosticsSystem {
    QString appVersion;
    QString name = systemName.toString(); ///< of the operating system, as in "NAME: VERSION"
    QString version;                      ///< what the system calls itself
    Timestamp now;
    QString locale = {}; ///< in which the date is written ("de_DE"); empty: the user's
};

/// The report that a person sends to support: what is watched, by which rules, and what went wrong
/// in the last day. `logs` is newest first; `warnings` are sentences. Lines are joined by line
/// feeds, without one at the end. Reads no files but those of the system's time zone and locale.
[[nodiscard]] QString diagnosticsReport(const std::vector<WatchedFolder>& folders,
                                        const QHash<QUuid, FolderAccess>& access,
                                        const std::vector<LogEntry>& logs,
                                        const QStringList& warnings,
                                        const DiagnosticsSystem& system);

} // namespace quillon
