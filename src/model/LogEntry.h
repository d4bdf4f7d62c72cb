#pragma once

#include "platform/Clock.h"
#include "platform/Error.h"

#include <QJsonObject>
#include <QString>
#include <QUuid>

#include <optional>

namespace quillon {

class JsonReader;

/// What happened to one file in one run, and what is needed to take it back.
struct LogEntry {
    QUuid id = QUuid::createUuid();
    Timestamp date = {};
    QString fileName = {}; ///< at the time of the operation
    QString ruleName = {};
    QString actionSummary = {};
    QString folderName = {};
    std::optional<QUuid> folderID = std::nullopt;
    bool isError = false;  ///< some action failed
    bool undoable = false; ///< the file ended somewhere else and can be moved back
    std::optional<QString> originalPath = std::nullopt;
    std::optional<QString> currentPath = std::nullopt;
    std::optional<QString> trashedPath = std::nullopt;
    std::optional<QUuid> batchID = std::nullopt;

    bool operator==(const LogEntry&) const = default;

    [[nodiscard]] bool canUndo() const { return undoable && originalPath; }
};

[[nodiscard]] QJsonObject toJson(const LogEntry& entry);
[[nodiscard]] Expected<LogEntry> logEntryFromJson(const JsonReader& json, Timestamp now);

} // namespace quillon
