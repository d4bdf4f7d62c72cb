#include "engine/ConditionValues.h"
#include "engine/conditions/ConditionTable.h"

namespace quillon {
namespace {

using Duration = Timestamp::duration;

CompiledCondition never() {
    return [](MatchContext&) { return Truth::no; };
}

template <typename Test>
CompiledCondition dateTest(ConditionAttribute attribute, Test test) {
    return [attribute, test](MatchContext& context) {
        const std::optional<Timestamp> date = context.file.date(attribute);
        return truth(date && test(*date, context.now));
    };
}

/// Dates lie up to 584 years apart, durations only reach 292.
Duration age(Timestamp date, Timestamp now) {
    Timestamp::rep age = 0;
    if (__builtin_sub_overflow(now.time_since_epoch().count(), date.time_since_epoch().count(),
                               &age))
        return now > date ? Duration::max() : Duration::min();
    return Duration(age);
}

CompiledCondition compileAge(const Condition& condition) {
    constexpr double nanosecondsADay = 86400e9;
    const std::optional<double> days = parsedNumber(condition.value);
    if (!days)
        return never();
    const Duration limit = clampedNanoseconds(*days * nanosecondsADay);
    if (condition.op == MatchOperator::withinLastDays)
        return dateTest(condition.attribute,
                        [limit](Timestamp date, Timestamp now) { return age(date, now) <= limit; });
    return dateTest(condition.attribute,
                    [limit](Timestamp date, Timestamp now) { return age(date, now) > limit; });
}

CompiledCondition compileDay(const Condition& condition) {
    const std::optional<Timestamp> midnight = parsedDay(condition.value);
    if (!midnight)
        return never();
    if (condition.op == MatchOperator::before)
        return dateTest(condition.attribute, [midnight = *midnight](Timestamp date, Timestamp) {
            return date < midnight;
        });
    return dateTest(condition.attribute,
                    [midnight = *midnight](Timestamp date, Timestamp) { return date > midnight; });
}

CompiledCondition compile(const Condition& condition) {
    switch (condition.op) {
    case MatchOperator::withinLastDays:
    case MatchOperator::olderThanDays:
        return compileAge(condition);
    case MatchOperator::before:
    case MatchOperator::after:
        return compileDay(condition);
    default:
        return never();
    }
}

} // namespace

constinit const ConditionType dateModifiedCondition{ConditionAttribute::dateModified, compile};
constinit const ConditionType dateAddedCondition{ConditionAttribute::dateAdded, compile};
constinit const ConditionType dateCreatedCondition{ConditionAttribute::dateCreated, compile};
constinit const ConditionType lastOpenedCondition{ConditionAttribute::lastOpened, compile};

} // namespace quillon
