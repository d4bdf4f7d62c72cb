#pragma once

#include "model/Rule.h"

#include <vector>

namespace quillon {

/// The same rule under fresh ids: its own, and those of its conditions and actions.
[[nodiscard]] Rule freshCopy(Rule rule);

/// Replaces the rule of the same id, or appends it.
void putRule(std::vector<Rule>& rules, const Rule& rule);

// Each says whether it found the rule; an unknown one leaves the list alone.

bool deleteRule(std::vector<Rule>& rules, const QUuid& ruleID);
bool setRuleEnabled(std::vector<Rule>& rules, const QUuid& ruleID, bool enabled);
/// The duplicate, named "NAME copy", comes directly after the rule.
bool duplicateRule(std::vector<Rule>& rules, const QUuid& ruleID);
/// Up by a negative offset, down by a positive one, at most to the end of the list.
bool moveRuleBy(std::vector<Rule>& rules, const QUuid& ruleID, int offset);
bool moveRuleBefore(std::vector<Rule>& rules, const QUuid& ruleID, const QUuid& otherRuleID);

/// Into the order of these ids; rules that are not among them follow as they were.
void reorderRules(std::vector<Rule>& rules, const std::vector<QUuid>& order);

[[nodiscard]] const Rule* findRule(const std::vector<Rule>& rules, const QUuid& ruleID);

/// The copy of a rule for another folder's list: " copy" is added where that has one of this name.
[[nodiscard]] Rule copyFor(const std::vector<Rule>& targetRules, const Rule& rule);

} // namespace quillon
