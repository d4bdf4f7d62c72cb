#include "engine/TextMatch.h"
#include "engine/conditions/ConditionTable.h"

#include <algorithm>

namespace quillon {
namespace {

CompiledCondition compile(const Condition& condition) {
    const bool isNot = condition.op == MatchOperator::isNot;
    const MatchOperator op = isNot ? MatchOperator::is : condition.op;
    return [test = TextMatch(op, condition.value), wanted = !isNot](MatchContext& context) {
        const bool found =
            std::ranges::any_of(context.file.whereFrom(),
                                [&](const TextSubject& entry) { return test.holdsFor(entry); });
        return truth(found == wanted);
    };
}

CompiledCaptures captures(const Condition& condition) {
    return [pattern = TextPattern(condition.value)](FileFacts& file) {
        for (const TextSubject& entry : file.whereFrom())
            if (const auto groups = pattern.captures(entry.text))
                return *groups;
        return QStringList();
    };
}

} // namespace

constinit const ConditionType whereFromCondition{.attribute = ConditionAttribute::whereFrom,
                                                 .compile = compile,
                                                 .captures = captures,
                                                 .source =
                                                     ConditionType::Source::extendedAttributes};

} // namespace quillon
