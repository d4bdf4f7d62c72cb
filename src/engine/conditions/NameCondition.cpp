#include "engine/conditions/ConditionTable.h"
#include "engine/conditions/TextCondition.h"

namespace quillon {
namespace {

const TextSubject& subject(FileFacts& file) {
    return file.name();
}

CompiledCondition compile(const Condition& condition) {
    return compileText(condition, subject);
}

CompiledCaptures captures(const Condition& condition) {
    return textCaptures(condition, subject);
}

} // namespace

constinit const ConditionType nameCondition{ConditionAttribute::name, compile, captures};

} // namespace quillon
