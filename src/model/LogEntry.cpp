#include "model/LogEntry.h"

#include "model/JsonDate.h"
#include "model/JsonFields.h"
#include "model/JsonWriter.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

QJsonObject toJson(const LogEntry& entry) {
    QJsonObject object{
        {"id"_L1, uuidText(entry.id)},
        {"date"_L1, jsonDate(entry.date)},
        {"fileName"_L1, entry.fileName},
        {"ruleName"_L1, entry.ruleName},
        {"actionSummary"_L1, entry.actionSummary},
        {"folderName"_L1, entry.folderName},
        {"isError"_L1, entry.isError},
        {"undoable"_L1, entry.undoable},
    };
    insertIfPresent(object, "folderID"_L1, entry.folderID);
    insertIfPresent(object, "originalPath"_L1, entry.originalPath);
    insertIfPresent(object, "currentPath"_L1, entry.currentPath);
    insertIfPresent(object, "trashedPath"_L1, entry.trashedPath);
    insertIfPresent(object, "batchID"_L1, entry.batchID);
    return object;
}

Expected<LogEntry> logEntryFromJson(const JsonReader& json, Timestamp now) {
    LogEntry entry;
    entry.date = now;
    JsonFields fields(json);
    fields.optional("id"_L1, entry.id);
    fields.optional("date"_L1, entry.date);
    fields.optional("fileName"_L1, entry.fileName);
    fields.optional("ruleName"_L1, entry.ruleName);
    fields.optional("actionSummary"_L1, entry.actionSummary);
    fields.optional("folderName"_L1, entry.folderName);
    fields.optional("folderID"_L1, entry.folderID);
    fields.optional("isError"_L1, entry.isError);
    fields.optional("undoable"_L1, entry.undoable);
    fields.optional("originalPath"_L1, entry.originalPath);
    fields.optional("currentPath"_L1, entry.currentPath);
    fields.optional("trashedPath"_L1, entry.trashedPath);
    fields.optional("batchID"_L1, entry.batchID);
    return fields.result(std::move(entry));
}

} // namespace quillon
