#include "engine/RuleChecks.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Sizes, dates, kinds and tags without a value never match, which is no mistake to warn of.
bool needsValue(ConditionAttribute attribute) {
    switch (attribute) {
    case ConditionAttribute::name:
    case ConditionAttribute::fullName:
    case ConditionAttribute::extension:
    case ConditionAttribute::whereFrom:
    case ConditionAttribute::dobbinSays:
        return true;
    default:
        return false;
    }
}

bool isUnset(const std::optional<QString>& text) {
    return !text || text->isEmpty();
}

/// Empty when the action has what its type needs.
QString warning(const RuleAction& action) {
    switch (action.type) {
    case ActionType::move:
    case ActionType::copy:
        return isUnset(action.destination)
                   ? u"“%1” needs a destination folder."_s.arg(rawValue(action.type))
                   : QString();
    case ActionType::rename:
        return action.renamePattern.isEmpty() ? u"“Rename” needs a pattern."_s : QString();
    case ActionType::runShortcut:
        return isUnset(action.shortcutName) ? u"“Run Shortcut” needs a shortcut to run."_s
                                            : QString();
    case ActionType::runScript:
        return action.scriptCommand.isEmpty() ? u"“Run shell script” has no script."_s : QString();
    default:
        return {};
    }
}

} // namespace

QStringList validationWarnings(const Rule& rule) {
    QStringList warnings;
    if (rule.conditions.empty())
        warnings.append(u"Add at least one condition — this rule never matches."_s);
    for (const Condition& condition : rule.conditions)
        if (needsValue(condition.attribute) && condition.value.isEmpty())
            warnings.append(u"A “%1” condition has no value."_s.arg(rawValue(condition.attribute)));

    if (rule.actions.empty())
        warnings.append(u"Add an action — this rule does nothing."_s);
    for (const RuleAction& action : rule.actions)
        if (const QString text = warning(action); !text.isEmpty())
            warnings.append(text);
    return warnings;
}

} // namespace quillon
