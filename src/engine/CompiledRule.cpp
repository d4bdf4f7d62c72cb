#include "engine/CompiledRule.h"

#include "engine/RuleEngine.h"
#include "engine/RunRestraint.h"
#include "engine/conditions/ConditionTable.h"

#include <algorithm>

namespace quillon {
namespace {

/// Conditions have no effects, so their order shows only in the time they take.
int cost(const Condition& condition) {
    if (conditionType(condition.attribute).source != ConditionType::Source::listing)
        return 2;
    return condition.op == MatchOperator::matchesRegex ? 1 : 0;
}

} // namespace

CompiledRule::CompiledRule(Rule rule) : rule_(std::move(rule)), needsDobbin_(rule_.needsDobbin()) {
    std::vector<const Condition*> byCost;
    for (const Condition& condition : rule_.conditions) {
        byCost.push_back(&condition);
        const ConditionType& type = conditionType(condition.attribute);
        if (!captures_ && condition.op == MatchOperator::matchesRegex && type.captures != nullptr)
            captures_ = type.captures(condition);
    }
    std::ranges::stable_sort(byCost, {}, [](const Condition* c) { return cost(*c); });
    for (const Condition* condition : byCost) {
        const ConditionType& type = conditionType(condition->attribute);
        const bool asks = type.source == ConditionType::Source::assistant;
        (asks ? asking_ : plain_).push_back(type.compile(*condition));
    }
    renamesWithDobbin_ = std::ranges::any_of(rule_.actions, [](const RuleAction& action) {
        return action.type == ActionType::renameWithDobbin;
    });
}

MatchOutcome CompiledRule::match(MatchContext& context) const {
    const auto isNamed = [&] {
        return !renamesWithDobbin_ || hasActed(context) ||
               smartName(context.judge, context.file).has_value();
    };
    if (conditionsHold(context) && isNamed())
        return MatchOutcome::matches;
    return needsDobbin_ && context.judge.isWaiting(context.file.path())
               ? MatchOutcome::waiting
               : MatchOutcome::doesNotMatch;
}

bool CompiledRule::conditionsHold(MatchContext& context) const {
    if (plain_.empty() && asking_.empty())
        return false;
    const bool unlessDecided = rule_.matchMode != MatchMode::any;
    const Truth deciding = rule_.matchMode == MatchMode::all ? Truth::no : Truth::yes;
    for (const CompiledCondition& test : plain_)
        if (test(context) == deciding)
            return !unlessDecided;

    // It holds what it held when the rule acted, and asking anew would change nothing.
    if (!asking_.empty() && hasActed(context))
        return true;
    bool decided = false;
    bool unknown = false;
    // All of them, whatever the first ones say: asking is what queues a question.
    for (const CompiledCondition& test : asking_) {
        const Truth result = test(context);
        decided = decided || result == deciding;
        unknown = unknown || result == Truth::unknown;
    }
    return !unknown && decided != unlessDecided;
}

bool CompiledRule::hasActed(const MatchContext& context) const {
    return context.restraint &&
           context.restraint->hasActed(rule_, fileKey(context.file.path(), context.file.status()));
}

QStringList CompiledRule::captures(FileFacts& file) const {
    return captures_ ? captures_(file) : QStringList();
}

std::optional<QString> CompiledRule::smartName(FileJudge& judge, const FileFacts& file) const {
    return renamesWithDobbin_ ? judge.smartName(file.path()) : std::nullopt;
}

} // namespace quillon
