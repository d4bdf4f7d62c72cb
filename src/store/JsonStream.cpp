#include "store/JsonStream.h"

#include "model/JsonDate.h"

#include <QDateTime>

#include <charconv>

namespace quillon {
namespace {

constexpr char hexDigits[] = "0123456789ABCDEF";

bool isPlain(char c) {
    return static_cast<unsigned char>(c) >= 0x20 && c != '"' && c != '\\';
}

void appendEscaped(std::string& bytes, std::string_view utf8) {
    bytes += '"';
    while (!utf8.empty()) {
        const auto special = std::ranges::find_if_not(utf8, isPlain);
        const auto plain = std::size_t(special - utf8.begin());
        bytes += utf8.substr(0, plain);
        if (special == utf8.end())
            break;
        const auto code = static_cast<unsigned char>(*special);
        if (code >= 0x20) {
            bytes += '\\';
            bytes += *special;
        } else {
            bytes += "\\u00";
            bytes += hexDigits[code >> 4];
            bytes += hexDigits[code & 15];
        }
        utf8.remove_prefix(plain + 1);
    }
    bytes += '"';
}

/// The text without escapes, when it needs none and is ASCII: most of what is written.
bool appendAscii(std::string& bytes, QStringView text) {
    const std::size_t start = bytes.size();
    bytes.resize(start + std::size_t(text.size()) + 2);
    char* next = bytes.data() + start;
    *next++ = '"';
    for (const QChar c : text) {
        const char16_t code = c.unicode();
        if (code >= 0x80 || !isPlain(char(code))) {
            bytes.resize(start);
            return false;
        }
        *next++ = char(code);
    }
    *next = '"';
    return true;
}

/// As uuidText spells it.
std::array<char, 36> uuidCharacters(const QUuid& id) {
    const std::array<unsigned, 16> bytes{id.data1 >> 24,
                                         id.data1 >> 16 & 255u,
                                         id.data1 >> 8 & 255u,
                                         id.data1 & 255u,
                                         unsigned(id.data2) >> 8,
                                         id.data2 & 255u,
                                         unsigned(id.data3) >> 8,
                                         id.data3 & 255u,
                                         id.data4[0],
                                         id.data4[1],
                                         id.data4[2],
                                         id.data4[3],
                                         id.data4[4],
                                         id.data4[5],
                                         id.data4[6],
                                         id.data4[7]};
    std::array<char, 36> text{};
    char* next = text.data();
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10)
            *next++ = '-';
        *next++ = hexDigits[bytes[i] >> 4];
        *next++ = hexDigits[bytes[i] & 15];
    }
    return text;
}

} // namespace

JsonStream& JsonStream::begin(char bracket) {
    separate();
    bytes_ += bracket;
    needsComma_ = false;
    return *this;
}

JsonStream& JsonStream::end(char bracket) {
    bytes_ += bracket;
    needsComma_ = true;
    return *this;
}

void JsonStream::separate() {
    if (needsComma_)
        bytes_ += ',';
    needsComma_ = true;
}

JsonStream& JsonStream::key(std::string_view name) {
    separate();
    ((bytes_ += '"') += name) += "\":";
    needsComma_ = false;
    return *this;
}

JsonStream& JsonStream::text(QStringView value) {
    separate();
    if (!appendAscii(bytes_, value)) {
        const QByteArray utf8 = value.toUtf8();
        appendEscaped(bytes_, {utf8.constData(), std::size_t(utf8.size())});
    }
    return *this;
}

JsonStream& JsonStream::text(std::string_view utf8) {
    separate();
    appendEscaped(bytes_, utf8);
    return *this;
}

JsonStream& JsonStream::id(const QUuid& value) {
    const std::array<char, 36> characters = uuidCharacters(value);
    return text(std::string_view(characters.data(), characters.size()));
}

JsonStream& JsonStream::truth(bool value) {
    separate();
    bytes_ += value ? "true" : "false";
    return *this;
}

JsonStream& JsonStream::integer(std::int64_t value) {
    separate();
    std::array<char, 24> digits{};
    const auto written = std::to_chars(digits.begin(), digits.end(), value);
    bytes_.append(digits.data(), written.ptr);
    return *this;
}

JsonStream& JsonStream::real(double value) {
    separate();
    std::array<char, 40> digits{};
    const auto written = std::to_chars(digits.begin(), digits.end(), value);
    bytes_.append(digits.data(), written.ptr);
    return *this;
}

JsonStream& JsonStream::isoDate(Timestamp value) {
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(value);
    return text(QDateTime::fromMSecsSinceEpoch(milliseconds.time_since_epoch().count(), Qt::UTC)
                    .toString(Qt::ISODateWithMs));
}

JsonStream& JsonStream::breakLine() {
    bytes_ += '\n';
    return *this;
}

JsonStream& JsonStream::beginRecord() {
    needsComma_ = false;
    return *this;
}

QByteArray JsonStream::take() {
    const QByteArray taken(bytes_.data(), qsizetype(bytes_.size()));
    bytes_.clear();
    return taken;
}

void writeLogEntry(JsonStream& json, const LogEntry& entry, DateForm form) {
    const auto optionalText = [&](std::string_view key, const std::optional<QString>& value) {
        if (value)
            json.key(key).text(*value);
    };
    const auto optionalID = [&](std::string_view key, const std::optional<QUuid>& value) {
        if (value)
            json.key(key).id(*value);
    };
    json.beginObject().key("id").id(entry.id).key("date");
    if (form == DateForm::stored)
        json.real(jsonDate(entry.date));
    else
        json.isoDate(entry.date);
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
