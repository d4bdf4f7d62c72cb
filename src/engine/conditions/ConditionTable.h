#pragma once

#include "engine/CompiledCondition.h"
#include "model/Condition.h"

namespace quillon {

/// What the engine knows about one attribute. Each is defined in a file of its own in this folder
/// and listed in the table.
struct ConditionType {
    ConditionAttribute attribute;
    CompiledCondition (*compile)(const Condition& condition);
    /// For a condition that is a pattern; null where the attribute has no text.
    CompiledCaptures (*captures)(const Condition& condition) = nullptr;
    enum class Source { listing, extendedAttributes, assistant };
    Source source = Source::listing;
};

extern const ConditionType nameCondition;
extern const ConditionType fullNameCondition;
extern const ConditionType extensionCondition;
extern const ConditionType kindCondition;
extern const ConditionType tagCondition;
extern const ConditionType whereFromCondition;
extern const ConditionType dateModifiedCondition;
extern const ConditionType dateAddedCondition;
extern const ConditionType dateCreatedCondition;
extern const ConditionType lastOpenedCondition;
extern const ConditionType sizeCondition;
extern const ConditionType dobbinCondition;

[[nodiscard]] const ConditionType& conditionType(ConditionAttribute attribute);

} // namespace quillon
