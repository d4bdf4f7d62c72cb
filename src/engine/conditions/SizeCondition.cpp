#include "engine/ConditionValues.h"
#include "engine/conditions/ConditionTable.h"

namespace quillon {
namespace {

double bytesIn(SizeUnit unit) {
    switch (unit) {
    case SizeUnit::kb:
        return 0x1p10;
    case SizeUnit::mb:
        return 0x1p20;
    case SizeUnit::gb:
        return 0x1p30;
    }
    return 0x1p20;
}

CompiledCondition compile(const Condition& condition) {
    const std::optional<double> number = parsedNumber(condition.value);
    if (!number)
        return [](MatchContext&) { return Truth::no; };
    const double threshold = *number * bytesIn(condition.unit.value_or(SizeUnit::mb));
    if (condition.op == MatchOperator::greaterThan)
        return [threshold](MatchContext& context) {
            return truth(static_cast<double>(context.file.status().size) > threshold);
        };
    return [threshold](MatchContext& context) {
        return truth(static_cast<double>(context.file.status().size) < threshold);
    };
}

} // namespace

constinit const ConditionType sizeCondition{ConditionAttribute::size, compile};

} // namespace quillon
