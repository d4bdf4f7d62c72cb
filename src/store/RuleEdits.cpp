#include "store/RuleEdits.h"

#include <algorithm>

namespace quillon {
namespace {

constexpr QLatin1String copySuffix(" copy");

auto positionOf(std::vector<Rule>& rules, const QUuid& ruleID) {
    return std::ranges::find(rules, ruleID, &Rule::id);
}

} // namespace

Rule freshCopy(Rule rule) {
    rule.id = QUuid::createUuid();
    for (Condition& condition : rule.conditions)
        condition.id = QUuid::createUuid();
    for (RuleAction& action : rule.actions)
        action.id = QUuid::createUuid();
    return rule;
}

void putRule(std::vector<Rule>& rules, const Rule& rule) {
    const auto found = positionOf(rules, rule.id);
    if (found == rules.end())
        rules.push_back(rule);
    else
        *found = rule;
}

bool deleteRule(std::vector<Rule>& rules, const QUuid& ruleID) {
    return std::erase_if(rules, [&](const Rule& rule) { return rule.id == ruleID; }) > 0;
}

bool setRuleEnabled(std::vector<Rule>& rules, const QUuid& ruleID, bool enabled) {
    const auto found = positionOf(rules, ruleID);
    if (found == rules.end())
        return false;
    found->isEnabled = enabled;
    return true;
}

bool duplicateRule(std::vector<Rule>& rules, const QUuid& ruleID) {
    const auto found = positionOf(rules, ruleID);
    if (found == rules.end())
        return false;
    Rule copy = freshCopy(*found);
    copy.name += copySuffix;
    rules.insert(found + 1, std::move(copy));
    return true;
}

void reorderRules(std::vector<Rule>& rules, const std::vector<QUuid>& order) {
    std::ranges::stable_sort(rules, {},
                             [&](const Rule& rule) { return std::ranges::find(order, rule.id); });
}

bool moveRuleBy(std::vector<Rule>& rules, const QUuid& ruleID, int offset) {
    const auto found = positionOf(rules, ruleID);
    if (found == rules.end())
        return false;
    const auto last = std::ptrdiff_t(rules.size()) - 1;
    const std::ptrdiff_t from = found - rules.begin();
    const std::ptrdiff_t to = std::clamp(from + offset, std::ptrdiff_t(0), last);
    if (to < from)
        std::rotate(rules.begin() + to, found, found + 1);
    else
        std::rotate(found, found + 1, rules.begin() + to + 1);
    return true;
}

bool moveRuleBefore(std::vector<Rule>& rules, const QUuid& ruleID, const QUuid& otherRuleID) {
    const auto found = positionOf(rules, ruleID);
    const auto other = positionOf(rules, otherRuleID);
    if (found == rules.end() || other == rules.end())
        return false;
    if (found < other)
        std::rotate(found, found + 1, other);
    else
        std::rotate(other, found, found == other ? found : found + 1);
    return true;
}

const Rule* findRule(const std::vector<Rule>& rules, const QUuid& ruleID) {
    const auto found = std::ranges::find(rules, ruleID, &Rule::id);
    return found == rules.end() ? nullptr : &*found;
}

Rule copyFor(const std::vector<Rule>& targetRules, const Rule& rule) {
    Rule copy = freshCopy(rule);
    if (std::ranges::find(targetRules, copy.name, &Rule::name) != targetRules.end())
        copy.name += copySuffix;
    return copy;
}

} // namespace quillon
