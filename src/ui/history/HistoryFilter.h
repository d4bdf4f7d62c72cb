#pragma once

#include "model/LogEntry.h"

#include <QString>
#include <QStringList>
#include <QUuid>

#include <cstdint>
#include <optional>

namespace quillon {

/// Which entries of the log are looked for.
struct HistoryFilter {
    enum class Outcome : std::uint8_t { any, changes, errors };

    QString words = {}; ///< each of which must be found in the file, rule, folder or what was done
    std::optional<QUuid> folderID = std::nullopt;
    Outcome outcome = Outcome::any;

    bool operator==(const HistoryFilter&) const = default;

    /// Whether it leaves nothing out, whatever the log holds.
    [[nodiscard]] bool isOpen() const;
    [[nodiscard]] bool matches(const LogEntry& entry) const;
    /// As matches(), whatever came of it.
    [[nodiscard]] bool matchesSubject(const LogEntry& entry) const;
};

} // namespace quillon
