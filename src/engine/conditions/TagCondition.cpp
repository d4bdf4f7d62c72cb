#include "engine/conditions/ConditionTable.h"
#include "model/TagColor.h"

namespace quillon {
namespace {

CompiledCondition compile(const Condition& condition) {
    // The raw value is the tag's name in lower case, as the facts give it.
    if (!fromRawValue<TagColor>(condition.value))
        return [](MatchContext&) { return Truth::no; };
    return [tag = condition.value,
            wanted = condition.op != MatchOperator::isNot](MatchContext& context) {
        const Expected<QStringList>& tags = context.file.tags();
        return truth(tags && tags->contains(tag) == wanted);
    };
}

} // namespace

constinit const ConditionType tagCondition{.attribute = ConditionAttribute::tag,
                                           .compile = compile,
                                           .source = ConditionType::Source::extendedAttributes};

} // namespace quillon
