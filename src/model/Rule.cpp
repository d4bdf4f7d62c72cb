#include "model/Rule.h"

#include "model/JsonFields.h"
#include "model/JsonWriter.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Files from before there were three modes hold a bool.
MatchMode legacyMatchMode(const JsonReader& json) {
    const auto matchAll = json.member("matchAll"_L1);
    return matchAll && !matchAll->read<bool>().value_or(true) ? MatchMode::any : MatchMode::all;
}

} // namespace

bool Rule::needsDobbin() const {
    return std::ranges::any_of(conditions,
                               [](const Condition& condition) {
                                   return condition.attribute == ConditionAttribute::dobbinSays;
                               }) ||
           std::ranges::any_of(actions, [](const RuleAction& action) {
               return action.type == ActionType::renameWithDobbin;
           });
}

QJsonObject toJson(const Rule& rule) {
    return {
        {"id"_L1, uuidText(rule.id)},
        {"name"_L1, rule.name},
        {"isEnabled"_L1, rule.isEnabled},
        {"matchMode"_L1, rawValue(rule.matchMode)},
        {"conditions"_L1, jsonList(rule.conditions)},
        {"actions"_L1, jsonList(rule.actions)},
    };
}

Expected<Rule> ruleFromJson(const JsonReader& json) {
    Rule rule;
    rule.name = u"Rule"_s;
    rule.matchMode = legacyMatchMode(json);
    JsonFields fields(json);
    fields.optional("id"_L1, rule.id);
    fields.optional("name"_L1, rule.name);
    fields.optional("isEnabled"_L1, rule.isEnabled);
    fields.optionalList("conditions"_L1, rule.conditions, conditionFromJson);
    fields.optionalList("actions"_L1, rule.actions, actionFromJson);
    fields.optional("matchMode"_L1, rule.matchMode);
    return fields.result(std::move(rule));
}

} // namespace quillon
