#include "engine/conditions/TextCondition.h"

#include "engine/TextMatch.h"

namespace quillon {

CompiledCondition compileText(const Condition& condition, ReadSubject read) {
    return [test = TextMatch(condition.op, condition.value), read](MatchContext& context) {
        return truth(test.holdsFor(read(context.file)));
    };
}

CompiledCaptures textCaptures(const Condition& condition, ReadSubject read) {
    return [pattern = TextPattern(condition.value), read](FileFacts& file) {
        return pattern.captures(read(file).text).value_or(QStringList());
    };
}

} // namespace quillon
