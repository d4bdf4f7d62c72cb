#include "assistant/ValueWarnings.h"

#include "engine/ConditionValues.h"
#include "engine/RuleSummary.h"
#include "model/FileKind.h"
#include "model/TagColor.h"

#include <QRegularExpression>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

bool isUnderstood(const Condition& condition) {
    const QString& value = condition.value;
    switch (condition.op) {
    case MatchOperator::withinLastDays:
    case MatchOperator::olderThanDays:
    case MatchOperator::greaterThan:
    case MatchOperator::lessThan:
        return parsedNumber(value).has_value();
    case MatchOperator::before:
    case MatchOperator::after:
        return parsedDay(value).has_value();
    case MatchOperator::matchesRegex:
        return QRegularExpression(value).isValid();
    default:
        break;
    }
    if (condition.attribute == ConditionAttribute::kind)
        return fromRawValue<FileKind>(value).has_value();
    return condition.attribute != ConditionAttribute::tag ||
           fromRawValue<TagColor>(value).has_value();
}

} // namespace

QStringList valueWarnings(const Rule& rule) {
    QStringList warnings;
    for (const Condition& condition : rule.conditions)
        if (!isUnderstood(condition))
            warnings.append(
                u"Rules don't understand the value in “%1”."_s.arg(summaryText(condition)));
    return warnings;
}

} // namespace quillon
