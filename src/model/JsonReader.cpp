#include "model/JsonReader.h"

#include "model/JsonDate.h"
#include "model/Uuid.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <limits>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestQuote = 80;

QString found(const QJsonValue& value) {
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? u"true"_s : u"false"_s;
    case QJsonValue::Double:
        return u"a number"_s;
    case QJsonValue::String:
        return u"text"_s;
    case QJsonValue::Array:
        return u"a list"_s;
    case QJsonValue::Object:
        return u"an object"_s;
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        break;
    }
    return u"null"_s;
}

/// As JSON would write it, which for most numbers is as it was typed.
QString numberText(const QJsonValue& value) {
    return QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact))
        .sliced(1)
        .chopped(1);
}

} // namespace

QString quotedForError(const QString& text) {
    QString shown = text.simplified();
    if (shown.size() > longestQuote) {
        const bool splitsPair = shown.at(longestQuote - 1).isHighSurrogate();
        shown = shown.left(splitsPair ? longestQuote - 1 : longestQuote) + u'…';
    }
    return u'“' + shown + u'”';
}

std::optional<JsonReader> JsonReader::member(QLatin1StringView key) const {
    const QJsonValue value = value_[key];
    if (value.isUndefined() || value.isNull())
        return std::nullopt;
    return JsonReader(value, memberPath(key));
}

JsonReader JsonReader::item(qsizetype index) const {
    return JsonReader(value_[index], u"%1[%2]"_s.arg(path_, QString::number(index)));
}

Expected<qsizetype> JsonReader::listSize() const {
    if (!value_.isArray())
        return wrongType("a list"_L1);
    return value_.toArray().size();
}

Expected<void> JsonReader::checkObject() const {
    if (!value_.isObject())
        return wrongType("an object"_L1);
    return {};
}

template <>
Expected<bool> JsonReader::read<bool>() const {
    if (!value_.isBool())
        return wrongType("true or false"_L1);
    return value_.toBool();
}

template <>
Expected<int> JsonReader::read<int>() const {
    if (!value_.isDouble())
        return wrongType("a number"_L1);
    const double number = value_.toDouble();
    if (number != std::floor(number))
        return wrong(u"%1 is not a whole number"_s.arg(numberText(value_)));
    if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max())
        return wrong(u"%1 is out of range"_s.arg(numberText(value_)));
    return static_cast<int>(number);
}

template <>
Expected<QString> JsonReader::read<QString>() const {
    if (!value_.isString())
        return wrongType("text"_L1);
    QString text = value_.toString();
    // Neither can be part of a path or of a command, where it would cut or change the text unseen.
    if (!text.isValidUtf16())
        return wrong(u"the text is not valid Unicode"_s);
    if (text.contains(QChar(u'\0')))
        return wrong(u"the text holds a NUL character"_s);
    return text;
}

template <>
Expected<QUuid> JsonReader::read<QUuid>() const {
    const auto text = read<QString>();
    if (!text)
        return std::unexpected(text.error());
    if (const auto id = uuidFromText(*text))
        return *id;
    return wrong(u"%1 is not a UUID"_s.arg(quotedForError(*text)));
}

template <>
Expected<Timestamp> JsonReader::read<Timestamp>() const {
    if (!value_.isDouble())
        return wrongType("a number"_L1);
    if (const auto moment = timestampFromJsonDate(value_.toDouble()))
        return *moment;
    return wrong(u"%1 is too far away to be a date"_s.arg(numberText(value_)));
}

std::unexpected<Error> JsonReader::wrong(const QString& what) const {
    return failure(ErrorKind::invalid, path_.isEmpty() ? what : path_ + u": "_s + what);
}

std::unexpected<Error> JsonReader::missing(QLatin1StringView key) const {
    return failure(ErrorKind::invalid, u"%1 is missing"_s.arg(memberPath(key)));
}

std::unexpected<Error> JsonReader::wrongType(QLatin1StringView expected) const {
    return wrong(u"expected %1, found %2"_s.arg(expected, found(value_)));
}

QString JsonReader::memberPath(QLatin1StringView key) const {
    return path_.isEmpty() ? QString(key) : path_ + u'.' + key;
}

} // namespace quillon
