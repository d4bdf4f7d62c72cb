#include "store/PersistedState.h"

#include "model/JsonFields.h"
#include "model/JsonText.h"
#include "model/JsonWriter.h"
#include "store/JsonStream.h"

#include <QJsonDocument>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

QJsonObject processedToJson(const QHash<QString, QSet<QString>>& processed) {
    QJsonObject object;
    for (auto it = processed.cbegin(); it != processed.cend(); ++it) {
        QStringList keys(it->cbegin(), it->cend());
        keys.sort();
        object.insert(it.key(), QJsonArray::fromStringList(keys));
    }
    return object;
}

Expected<QHash<QString, QSet<QString>>> processedFromJson(const JsonReader& json) {
    if (const auto isObject = json.checkObject(); !isObject)
        return std::unexpected(isObject.error());
    QHash<QString, QSet<QString>> processed;
    for (const QString& folder : json.value().toObject().keys()) {
        const JsonReader list(json.value()[folder], u"processedFiles.%1"_s.arg(folder));
        const auto keys = JsonFields::readList<QString>(
            list, [](const JsonReader& item) { return item.read<QString>(); });
        if (!keys)
            return std::unexpected(keys.error());
        processed.insert(folder, QSet<QString>(keys->begin(), keys->end()));
    }
    return processed;
}

} // namespace

bool PersistedState::hasOnlyFolders() const {
    return logs.empty() && processedFiles.isEmpty() && !isPaused;
}

PersistedState PersistedState::foldersOnly() const {
    PersistedState bare;
    bare.folders = folders;
    bare.other = other;
    return bare;
}

void PersistedState::takeHistory(PersistedState previous) {
    logs = std::move(previous.logs);
    processedFiles = std::move(previous.processedFiles);
    isPaused = previous.isPaused;
}

void PersistedState::addLogs(std::vector<LogEntry> entries) {
    logs.insert(logs.begin(), std::move_iterator(entries.begin()),
                std::move_iterator(entries.end()));
    if (logs.size() > logCap)
        logs.resize(logCap);
}

QByteArray encodeState(const PersistedState& state) {
    QJsonObject object = state.other;
    object.insert("folders"_L1, jsonList(state.folders));
    object.insert("processedFiles"_L1, processedToJson(state.processedFiles));
    object.insert("isPaused"_L1, state.isPaused);
    QByteArray bytes = QJsonDocument(object).toJson(QJsonDocument::Compact);

    // As a tree of values the log would take longer than all the rest.
    JsonStream logs;
    logs.beginObject().key("logs").beginList();
    for (const LogEntry& entry : state.logs)
        writeLogEntry(logs, entry, DateForm::stored);
    logs.endList().endObject();
    bytes.back() = ',';
    return bytes.append(logs.take().sliced(1));
}

Expected<PersistedState> decodeState(const QByteArray& bytes, Timestamp now) {
    const Expected<QJsonValue> root = parseJson(bytes);
    if (!root)
        return std::unexpected(root.error());

    const JsonReader json(*root);
    PersistedState state;
    JsonFields fields(json);
    fields.requiredList("folders"_L1, state.folders, folderFromJson);
    fields.requiredList("logs"_L1, state.logs,
                        [now](const JsonReader& item) { return logEntryFromJson(item, now); });
    fields.optional("isPaused"_L1, state.isPaused);
    if (const auto processed = json.member("processedFiles"_L1)) {
        auto read = processedFromJson(*processed);
        if (!read)
            return std::unexpected(read.error());
        state.processedFiles = std::move(*read);
    }
    state.other = root->toObject();
    for (const auto key : {"folders"_L1, "logs"_L1, "processedFiles"_L1, "isPaused"_L1})
        state.other.remove(key);
    return fields.result(std::move(state));
}

} // namespace quillon
