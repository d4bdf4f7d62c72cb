#include "assistant/backends/AnswerSchema.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

bool isWhole(const QJsonValue& value) {
    return value.isDouble() && std::trunc(value.toDouble()) == value.toDouble();
}

bool isOfType(const QJsonValue& value, const QString& type) {
    const struct {
        QLatin1StringView name;
        bool isSo;
    } types[] = {
        {"object"_L1, value.isObject()}, {"array"_L1, value.isArray()},
        {"string"_L1, value.isString()}, {"number"_L1, value.isDouble()},
        {"integer"_L1, isWhole(value)},  {"boolean"_L1, value.isBool()},
        {"null"_L1, value.isNull()},
    };
    return std::ranges::any_of(types,
                               [&](const auto& row) { return row.isSo && row.name == type; });
}

bool isOfTypes(const QJsonValue& value, const QJsonValue& types) {
    if (types.isUndefined())
        return true;
    if (types.isString())
        return isOfType(value, types.toString());
    const QJsonArray list = types.toArray();
    return std::any_of(list.begin(), list.end(),
                       [&](const QJsonValue& type) { return isOfType(value, type.toString()); });
}

/// What `items` and `additionalProperties` hold: a schema, or whether there may be any at all.
bool fitsRest(const QJsonValue& value, const QJsonValue& rest) {
    return rest.isObject() ? fits(value, rest.toObject()) : rest.toBool(true);
}

bool fitsAsObject(const QJsonObject& object, const QJsonObject& schema) {
    const QJsonArray required = schema[u"required"].toArray();
    if (!std::all_of(required.begin(), required.end(),
                     [&](const QJsonValue& key) { return object.contains(key.toString()); }))
        return false;
    const QJsonObject properties = schema[u"properties"].toObject();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const auto property = properties.find(entry.key());
        if (!fitsRest(entry.value(), property == properties.end() ? schema[u"additionalProperties"]
                                                                  : property.value()))
            return false;
    }
    return true;
}

} // namespace

bool fits(const QJsonValue& answer, const QJsonObject& schema) {
    if (!isOfTypes(answer, schema[u"type"]))
        return false;
    if (const QJsonValue choices = schema[u"enum"];
        choices.isArray() && !choices.toArray().contains(answer))
        return false;
    if (answer.isObject())
        return fitsAsObject(answer.toObject(), schema);
    const QJsonArray items = answer.toArray();
    return std::all_of(items.begin(), items.end(),
                       [&](const QJsonValue& item) { return fitsRest(item, schema[u"items"]); });
}

} // namespace quillon
