#include "engine/conditions/ConditionTable.h"

namespace quillon {
namespace {

CompiledCondition compile(const Condition& condition) {
    const auto kind = fromRawValue<FileKind>(condition.value);
    if (!kind)
        return [](MatchContext&) { return Truth::no; };
    return [kind = *kind, wanted = condition.op != MatchOperator::isNot](MatchContext& context) {
        return truth((context.file.kind() == kind) == wanted);
    };
}

} // namespace

constinit const ConditionType kindCondition{ConditionAttribute::kind, compile};

} // namespace quillon
