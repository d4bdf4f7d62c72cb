#include "model/ConditionAttribute.h"

namespace quillon {

bool isDate(ConditionAttribute attribute) {
    switch (attribute) {
    case ConditionAttribute::dateModified:
    case ConditionAttribute::dateAdded:
    case ConditionAttribute::dateCreated:
    case ConditionAttribute::lastOpened:
        return true;
    default:
        return false;
    }
}

std::vector<MatchOperator> allowedOperators(ConditionAttribute attribute) {
    using enum MatchOperator;
    switch (attribute) {
    case ConditionAttribute::name:
    case ConditionAttribute::fullName:
    case ConditionAttribute::extension:
    case ConditionAttribute::whereFrom:
        return {contains, is, isNot, beginsWith, endsWith, matchesRegex};
    case ConditionAttribute::dateModified:
    case ConditionAttribute::dateAdded:
    case ConditionAttribute::dateCreated:
    case ConditionAttribute::lastOpened:
        return {withinLastDays, olderThanDays, before, after};
    case ConditionAttribute::size:
        return {greaterThan, lessThan};
    case ConditionAttribute::kind:
    case ConditionAttribute::tag:
    case ConditionAttribute::dobbinSays:
        break;
    }
    return {is, isNot};
}

} // namespace quillon
