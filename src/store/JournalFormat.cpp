#include "store/JournalFormat.h"

#include "model/JsonDate.h"
#include "model/JsonReader.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

std::int64_t nanoseconds(Timestamp moment) {
    return moment.time_since_epoch().count();
}

Timestamp moment(const QJsonValue& value) {
    return Timestamp(std::chrono::nanoseconds(value.toInteger()));
}

std::uint64_t unsignedOf(const QJsonValue& value) {
    return static_cast<std::uint64_t>(value.toInteger());
}

FileStatus statusFromJson(const QJsonValue& json) {
    FileStatus status;
    status.device = unsignedOf(json["device"_L1]);
    status.inode = unsignedOf(json["inode"_L1]);
    status.size = unsignedOf(json["size"_L1]);
    status.modified = moment(json["modified"_L1]);
    if (const QJsonValue created = json["created"_L1]; created.isDouble())
        status.created = moment(created);
    return status;
}

class Reader {
public:
    void readLine(const QByteArray& line, bool isCutShort) {
        const QJsonObject record = QJsonDocument::fromJson(line).object();
        const bool understood = readHeader(record) || readIntent(record, "intent"_L1, false) ||
                                readIntent(record, "undo"_L1, true) || readOutcome(record) ||
                                readLaunch(record) || readSaved(record);
        if (!understood && !isCutShort)
            ++contents_.unreadableLines;
    }

    JournalContents take() {
        std::erase_if(contents_.files,
                      [this](const JournalledFile& file) { return saved_.contains(file.run); });
        return std::move(contents_);
    }

private:
    bool readHeader(const QJsonObject& record) {
        if (!record.contains("temporaryTag"_L1))
            return false;
        contents_.temporaryTag = record["temporaryTag"_L1].toString().toStdString();
        return true;
    }

    static QUuid runOf(const QJsonObject& record) { return QUuid(record["run"_L1].toString()); }

    bool readIntent(const QJsonObject& record, QLatin1StringView key, bool isUndo) {
        if (!record.contains(key))
            return false;
        auto entry = logEntryFromJson(JsonReader(record[key]), Timestamp{});
        if (!entry || !entry->originalPath)
            return false;
        JournalledFile file;
        file.run = runOf(record);
        file.isUndo = isUndo;
        file.intent.entry = std::move(*entry);
        file.intent.status = statusFromJson(record["file"_L1]);
        for (const QJsonValue& folder : record["folders"_L1].toArray())
            file.intent.targetFolders.push_back(folder.toString().toStdString());
        positions_.insert({file.run, file.intent.entry.id}, contents_.files.size());
        contents_.files.push_back(std::move(file));
        return true;
    }

    bool readOutcome(const QJsonObject& record) {
        if (!record.contains("outcome"_L1))
            return false;
        auto outcome = logEntryFromJson(JsonReader(record["outcome"_L1]), Timestamp{});
        if (!outcome)
            return false;
        const auto position = positions_.constFind({runOf(record), outcome->id});
        if (position == positions_.cend())
            return false;
        JournalledFile& file = contents_.files[*position];
        file.hasOutcome = true;
        LogEntry& entry = file.intent.entry;
        entry.date = outcome->date;
        entry.actionSummary = outcome->actionSummary;
        entry.isError = outcome->isError;
        entry.undoable = outcome->undoable;
        entry.currentPath = outcome->currentPath;
        entry.trashedPath = outcome->trashedPath;
        return true;
    }

    bool readLaunch(const QJsonObject& record) {
        if (!record.contains("launch"_L1))
            return false;
        contents_.isLaunchNoted = true;
        return true;
    }

    bool readSaved(const QJsonObject& record) {
        if (!record.contains("saved"_L1))
            return false;
        for (const QJsonValue& run : record["saved"_L1].toArray())
            saved_.insert(QUuid(run.toString()));
        contents_.isLaunchNoted = false;
        return true;
    }

    JournalContents contents_;
    QHash<std::pair<QUuid, QUuid>, std::size_t> positions_; ///< by run and entry
    QSet<QUuid> saved_;
};

} // namespace

void writeJournalHeader(JsonStream& json, std::string_view temporaryTag) {
    json.beginRecord().beginObject().key("temporaryTag").text(temporaryTag).endObject().breakLine();
}

void writeIntent(JsonStream& json, const QUuid& run, const Intent& intent, bool isUndo) {
    json.beginRecord().beginObject().key("run").id(run).key(isUndo ? "undo" : "intent");
    writeLogEntry(json, intent.entry, DateForm::stored);
    json.key("file").beginObject();
    json.key("device").integer(static_cast<std::int64_t>(intent.status.device));
    json.key("inode").integer(static_cast<std::int64_t>(intent.status.inode));
    json.key("size").integer(static_cast<std::int64_t>(intent.status.size));
    json.key("modified").integer(nanoseconds(intent.status.modified));
    if (intent.status.created)
        json.key("created").integer(nanoseconds(*intent.status.created));
    json.endObject().key("folders").beginList();
    for (const std::string& folder : intent.targetFolders)
        json.text(folder);
    json.endList().endObject().breakLine();
}

// Only what an action can change: the rest is in the intent.
void writeOutcome(JsonStream& json, const QUuid& run, const LogEntry& entry) {
    json.beginRecord().beginObject().key("run").id(run).key("outcome").beginObject();
    json.key("id").id(entry.id).key("date").real(jsonDate(entry.date));
    json.key("actionSummary").text(entry.actionSummary);
    json.key("isError").truth(entry.isError).key("undoable").truth(entry.undoable);
    if (entry.currentPath)
        json.key("currentPath").text(*entry.currentPath);
    if (entry.trashedPath)
        json.key("trashedPath").text(*entry.trashedPath);
    json.endObject().endObject().breakLine();
}

void writeLaunch(JsonStream& json) {
    json.beginRecord().beginObject().key("launch").truth(true).endObject().breakLine();
}

void writeSaved(JsonStream& json, const QSet<QUuid>& runs) {
    json.beginRecord().beginObject().key("saved").beginList();
    for (const QUuid& run : runs)
        json.id(run);
    json.endList().endObject().breakLine();
}

JournalContents readJournal(const QByteArray& bytes) {
    Reader reader;
    for (qsizetype start = 0; start < bytes.size();) {
        const qsizetype found = bytes.indexOf('\n', start);
        const bool isCutShort = found < 0;
        const qsizetype end = isCutShort ? bytes.size() : found;
        if (end > start)
            reader.readLine(bytes.sliced(start, end - start), isCutShort);
        start = end + 1;
    }
    return reader.take();
}

} // namespace quillon
