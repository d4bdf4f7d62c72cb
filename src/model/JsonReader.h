#pragma once

#include "model/RawValue.h"
#include "platform/Clock.h"
#include "platform/Error.h"

#include <QJsonValue>
#include <QString>
#include <QUuid>

#include <concepts>
#include <optional>
#include <type_traits>

namespace quillon {

/// One value of a JSON document and the path that leads to it, so that an error can say where it
/// is: "rules[0].isEnabled: expected true or false, found text". Every error is `invalid`.
class JsonReader {
public:
    /// `path` names the value in errors; it is empty for a document that needs no name.
    explicit JsonReader(QJsonValue value, QString path = {})
        : value_(std::move(value)), path_(std::move(path)) {}

    [[nodiscard]] const QJsonValue& value() const { return value_; }

    /// The value under a key of this object; nothing when the key is absent or `null`.
    [[nodiscard]] std::optional<JsonReader> member(QLatin1StringView key) const;

    /// The value at a position of this list.
    [[nodiscard]] JsonReader item(qsizetype index) const;

    /// bool, int, QString, QUuid, Timestamp or an enumeration with raw values.
    template <typename T>
    [[nodiscard]] Expected<T> read() const;

    /// The number of items, once it is known to be a list.
    [[nodiscard]] Expected<qsizetype> listSize() const;

    [[nodiscard]] Expected<void> checkObject() const;

    /// An error at this value.
    [[nodiscard]] std::unexpected<Error> wrong(const QString& what) const;

    /// An error at this object's key, which is required and absent.
    [[nodiscard]] std::unexpected<Error> missing(QLatin1StringView key) const;

private:
    [[nodiscard]] std::unexpected<Error> wrongType(QLatin1StringView expected) const;
    [[nodiscard]] QString memberPath(QLatin1StringView key) const;

    QJsonValue value_;
    QString path_;
};

/// The offending text as an error quotes it: in typographic quotes, on one line, cut when long.
[[nodiscard]] QString quotedForError(const QString& text);

template <>
Expected<bool> JsonReader::read<bool>() const;
template <>
Expected<int> JsonReader::read<int>() const;
template <>
Expected<QString> JsonReader::read<QString>() const;
template <>
Expected<QUuid> JsonReader::read<QUuid>() const;
template <>
Expected<Timestamp> JsonReader::read<Timestamp>() const;

template <typename T>
Expected<T> JsonReader::read() const {
    static_assert(std::is_enum_v<T>);
    const auto text = read<QString>();
    if (!text)
        return std::unexpected(text.error());
    if (const auto value = fromRawValue<T>(*text))
        return *value;
    return wrong(
        QStringLiteral("%1 is not %2").arg(quotedForError(*text), toQString(rawValueNoun<T>)));
}

} // namespace quillon
