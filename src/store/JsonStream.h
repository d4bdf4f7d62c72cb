#pragma once

#include "model/LogEntry.h"

#include <QByteArray>
#include <QStringView>
#include <QUuid>

#include <cstdint>
#include <string>
#include <string_view>

namespace quillon {

/// Builds JSON text piece by piece, for records too many for a tree of values. Keys are given in
/// ASCII and come out in the order in which they are given.
class JsonStream {
public:
    JsonStream& beginObject() { return begin('{'); }
    JsonStream& endObject() { return end('}'); }
    JsonStream& beginList() { return begin('['); }
    JsonStream& endList() { return end(']'); }
    JsonStream& key(std::string_view name);

    JsonStream& text(QStringView value);
    JsonStream& text(std::string_view utf8);
    JsonStream& id(const QUuid& value);
    JsonStream& truth(bool value);
    JsonStream& integer(std::int64_t value);
    JsonStream& real(double value); ///< finite
    JsonStream& isoDate(Timestamp value);

    /// A line break between two values.
    JsonStream& breakLine();
    /// The next value starts a text of its own.
    JsonStream& beginRecord();

    [[nodiscard]] std::size_t size() const { return bytes_.size(); }
    /// What has been built since the last call.
    [[nodiscard]] QByteArray take();

private:
    JsonStream& begin(char bracket);
    JsonStream& end(char bracket);
    void separate();

    std::string bytes_;
    bool needsComma_ = false;
};

enum class DateForm {
    stored, ///< the number that records hold
    iso,    ///< ISO 8601 in UTC, for whoever reads a command's output
};

/// One log entry under its keys, absent ones left out.
void writeLogEntry(JsonStream& json, const LogEntry& entry, DateForm form);

} // namespace quillon
