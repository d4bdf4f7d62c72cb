#include "engine/conditions/ConditionTable.h"

#include <algorithm>
#include <array>

namespace quillon {
namespace {

constexpr std::array<const ConditionType*, rawValues<ConditionAttribute>.size()> table{
    &nameCondition,        &fullNameCondition,   &extensionCondition,    &kindCondition,
    &tagCondition,         &whereFromCondition,  &dateModifiedCondition, &dateAddedCondition,
    &dateCreatedCondition, &lastOpenedCondition, &sizeCondition,         &dobbinCondition,
};

} // namespace

const ConditionType& conditionType(ConditionAttribute attribute) {
    return **std::ranges::find(table, attribute, &ConditionType::attribute);
}

} // namespace quillon
