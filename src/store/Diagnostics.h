#pragma once

#include "model/LogEntry.h"
#include "model/WatchedFolder.h"
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
    QString name;    ///< of the operating system, as in the line "NAME: VERSION"
    QString version; ///< its own name and version
    Timestamp now;
};

/// The report that a person sends to support: what is watched, by which rules, and what went wrong
/// in the last day. Pure.
[[nodiscard]] QString diagnosticsReport(const std::vector<WatchedFolder>& folders,
                                        const QHash<QUuid, FolderAccess>& access,
                                        const std::vector<LogEntry>& logs,
                                        const QStringList& warnings,
                                        const DiagnosticsSystem& system);

} // namespace quillon
