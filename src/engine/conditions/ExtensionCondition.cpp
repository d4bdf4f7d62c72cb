#include "engine/conditions/ConditionTable.h"
#include "engine/conditions/TextCondition.h"

namespace quillon {
namespace {

const TextSubject& subject(FileFacts& file) {
    return file.extension();
}

/// People write ".pdf" as often as "pdf".
Condition withoutDot(Condition condition) {
    if (condition.value.startsWith(u'.'))
        condition.value.remove(0, 1);
    return condition;
}

CompiledCondition compile(const Condition& condition) {
    return compileText(withoutDot(condition), subject);
}

CompiledCaptures captures(const Condition& condition) {
    return textCaptures(withoutDot(condition), subject);
}

} // namespace

constinit const ConditionType extensionCondition{ConditionAttribute::extension, compile, captures};

} // namespace quillon
