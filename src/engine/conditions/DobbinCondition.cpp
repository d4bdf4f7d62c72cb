#include "engine/conditions/ConditionTable.h"

namespace quillon {
namespace {

CompiledCondition compile(const Condition& condition) {
    return [question = condition.value,
            wanted = condition.op != MatchOperator::isNot](MatchContext& context) {
        const Verdict verdict = context.judge.verdict(context.file.path(), question);
        if (verdict == Verdict::unknown)
            return Truth::unknown;
        return truth((verdict == Verdict::yes) == wanted);
    };
}

} // namespace

constinit const ConditionType dobbinCondition{.attribute = ConditionAttribute::dobbinSays,
                                              .compile = compile,
                                              .source = ConditionType::Source::assistant};

} // namespace quillon
