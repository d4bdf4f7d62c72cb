#include "store/JsonStream.h"

#include "model/JsonDate.h"
#include "model/Uuid.h"

#include <QDateTime>

#include <charconv>

namespace quillon {
namespace {

void appendEscaped(QByteArray& bytes, std::string_view utf8) {
    static constexpr char hex[] = "0123456789abcdef";
    std::size_t copied = 0;
    const auto flush = [&](std::size_t end) {
        bytes.append(utf8.data() + copied, qsizetype(end - copied));
        copied = end + 1;
    };
    bytes.append('"');
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        if (c >= 0x20 && c != '"' && c != '\\')
            continue;
        flush(i);
        if (c >= 0x20)
            bytes.append('\\').append(char(c));
        else
            bytes.append("\\u00").append(hex[c >> 4]).append(hex[c & 15]);
    }
    flush(utf8.size());
    bytes.append('"');
}

QString isoText(Timestamp date) {
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(date);
    return QDateTime::fromMSecsSinceEpoch(milliseconds.time_since_epoch().count(), Qt::UTC)
        .toString(Qt::ISODateWithMs);
}

} // namespace

JsonStream& JsonStream::begin(char bracket) {
    separate();
    bytes_.append(bracket);
    needsComma_ = false;
    return *this;
}

JsonStream& JsonStream::end(char bracket) {
    bytes_.append(bracket);
    needsComma_ = true;
    return *this;
}

void JsonStream::separate() {
    if (needsComma_)
        bytes_.append(',');
    needsComma_ = true;
}

JsonStream& JsonStream::key(const char* name) {
    separate();
    bytes_.append('"').append(name).append("\":");
    needsComma_ = false;
    return *this;
}

JsonStream& JsonStream::text(QStringView value) {
    const QByteArray utf8 = value.toUtf8();
    return text(std::string_view(utf8.constData(), std::size_t(utf8.size())));
}

JsonStream& JsonStream::text(std::string_view utf8) {
    separate();
    appendEscaped(bytes_, utf8);
    return *this;
}

JsonStream& JsonStream::id(const QUuid& value) {
    return text(uuidText(value));
}

JsonStream& JsonStream::truth(bool value) {
    separate();
    bytes_.append(value ? "true" : "false");
    return *this;
}

JsonStream& JsonStream::integer(std::int64_t value) {
    separate();
    std::array<char, 24> digits{};
    const auto written = std::to_chars(digits.begin(), digits.end(), value);
    bytes_.append(digits.data(), written.ptr - digits.data());
    return *this;
}

JsonStream& JsonStream::real(double value) {
    separate();
    std::array<char, 40> digits{};
    const auto written = std::to_chars(digits.begin(), digits.end(), value);
    bytes_.append(digits.data(), written.ptr - digits.data());
    return *this;
}

JsonStream& JsonStream::breakLine() {
    bytes_.append('\n');
    return *this;
}

JsonStream& JsonStream::beginRecord() {
    needsComma_ = false;
    return *this;
}

QByteArray JsonStream::take() {
    return std::exchange(bytes_, {});
}

void writeLogEntry(JsonStream& json, const LogEntry& entry, DateForm form) {
    const auto optionalText = [&](const char* key, const std::optional<QString>& value) {
        if (value)
            json.key(key).text(*value);
    };
    const auto optionalID = [&](const char* key, const std::optional<QUuid>& value) {
        if (value)
            json.key(key).id(*value);
    };
    json.beginObject().key("id").id(entry.id).key("date");
    if (form == DateForm::stored)
        json.real(jsonDate(entry.date));
    else
        json.text(isoText(entry.date));
    json.key("fileName").text(entry.fileName);
    json.key("ruleName").text(entry.ruleName);
    json.key("actionSummary").text(entry.actionSummary);
    json.key("folderName").text(entry.folderName);
    optionalID("folderID", entry.folderID);
    json.key("isError").truth(entry.isError).key("undoable").truth(entry.undoable);
    optionalText("originalPath", entry.originalPath);
    optionalText("currentPath", entry.currentPath);
    optionalText("trashedPath", entry.trashedPath);
    optionalID("batchID", entry.batchID);
    json.endObject();
}

} // namespace quillon
