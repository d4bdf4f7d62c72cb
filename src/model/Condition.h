#pragma once

#include "model/ConditionAttribute.h"
#include "model/MatchOperator.h"
#include "model/SizeUnit.h"
#include "platform/Error.h"

#include <QJsonObject>
#include <QString>
#include <QUuid>

#include <optional>

namespace quillon {

class JsonReader;

/// One test of a rule. `value` is text whatever the attribute: a number, a day, a kind, a question.
struct Condition {
    QUuid id = QUuid::createUuid();
    ConditionAttribute attribute = ConditionAttribute::name;
    MatchOperator op = MatchOperator::contains;
    QString value = {};
    std::optional<SizeUnit> unit = SizeUnit::mb; ///< of a size; absent means MB

    bool operator==(const Condition&) const = default;
};

[[nodiscard]] QJsonObject toJson(const Condition& condition);
[[nodiscard]] Expected<Condition> conditionFromJson(const JsonReader& json);

} // namespace quillon
