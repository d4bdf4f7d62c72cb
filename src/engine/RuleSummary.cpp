#include "engine/RuleSummary.h"

#include "model/FileKind.h"
#include "model/PathText.h"

#include <QStringList>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// "5 days", and "1 day" for exactly that text: the value is shown as typed, never read as a
/// number.
QString days(const QString& value) {
    return value + (value == u"1"_s ? u" day"_s : u" days"_s);
}

QString textPhrase(const QString& subject, const Condition& condition) {
    return u"%1 %2 “%3”"_s.arg(subject, rawValue(condition.op), condition.value);
}

QString kindPhrase(const Condition& condition) {
    const auto kind = fromRawValue<FileKind>(condition.value);
    return (condition.op == MatchOperator::isNot ? u"kind is not "_s : u"kind is "_s) +
           (kind ? label(*kind) : condition.value);
}

QString tagPhrase(const Condition& condition) {
    const auto color = fromRawValue<TagColor>(condition.value);
    return (condition.op == MatchOperator::isNot ? u"not tagged "_s : u"tagged "_s) +
           (color ? label(*color) : condition.value);
}

QString sizePhrase(const Condition& condition) {
    return (condition.op == MatchOperator::greaterThan ? u"larger than "_s : u"smaller than "_s) +
           condition.value + u' ' + rawValue(condition.unit.value_or(SizeUnit::mb));
}

QString dobbinPhrase(const Condition& condition) {
    return (condition.op == MatchOperator::isNot ? u"Dobbin says it's not "_s
                                                 : u"Dobbin says it's "_s) +
           condition.value;
}

QString datePhrase(const QString& event, const Condition& condition) {
    switch (condition.op) {
    case MatchOperator::withinLastDays:
        return event + u" in the last "_s + days(condition.value);
    case MatchOperator::olderThanDays:
        return event + u" over "_s + days(condition.value) + u" ago"_s;
    default: // "before" and "after" read as they are stored
        return event + u' ' + rawValue(condition.op) + u' ' + condition.value;
    }
}

QString lastOpenedPhrase(const Condition& condition) {
    switch (condition.op) {
    case MatchOperator::withinLastDays:
        return u"opened in the last "_s + days(condition.value);
    case MatchOperator::olderThanDays:
        return u"not opened in over "_s + days(condition.value);
    default:
        return datePhrase(u"last opened"_s, condition);
    }
}

QString orEllipsis(const QString& text) {
    return text.isEmpty() ? u"…"_s : text;
}

QString destinationName(const RuleAction& action) {
    return orEllipsis(lastPathComponent(action.destination.value_or(QString())));
}

QString sortPhrase(SortStrategy strategy) {
    return u"Sort into subfolders "_s + rawValue(strategy).toLower();
}

template <typename T>
QStringList phrases(const std::vector<T>& items) {
    QStringList texts;
    for (const T& item : items)
        texts.append(summaryText(item));
    return texts;
}

QString conditionPart(const Rule& rule) {
    if (rule.conditions.empty())
        return u"Never (no conditions)"_s;
    const QString opening = rule.matchMode == MatchMode::none ? u"Unless "_s : u"If "_s;
    const QString joint = rule.matchMode == MatchMode::all ? u" and "_s : u" or "_s;
    return opening + phrases(rule.conditions).join(joint);
}

} // namespace

QString summaryText(const Condition& condition) {
    switch (condition.attribute) {
    case ConditionAttribute::name:
        return textPhrase(u"name"_s, condition);
    case ConditionAttribute::fullName:
        return textPhrase(u"full name"_s, condition);
    case ConditionAttribute::extension:
        return textPhrase(u"extension"_s, condition);
    case ConditionAttribute::whereFrom:
        return textPhrase(u"source"_s, condition);
    case ConditionAttribute::kind:
        return kindPhrase(condition);
    case ConditionAttribute::tag:
        return tagPhrase(condition);
    case ConditionAttribute::size:
        return sizePhrase(condition);
    case ConditionAttribute::dobbinSays:
        return dobbinPhrase(condition);
    case ConditionAttribute::dateModified:
        return datePhrase(u"modified"_s, condition);
    case ConditionAttribute::dateAdded:
        return datePhrase(u"added"_s, condition);
    case ConditionAttribute::dateCreated:
        return datePhrase(u"created"_s, condition);
    case ConditionAttribute::lastOpened:
        return lastOpenedPhrase(condition);
    }
    return {};
}

QString summaryText(const RuleAction& action) {
    switch (action.type) {
    case ActionType::move:
        return u"Move to "_s + destinationName(action);
    case ActionType::copy:
        return u"Copy to "_s + destinationName(action);
    case ActionType::rename:
        return u"Rename to “%1”"_s.arg(action.renamePattern.isEmpty() ? u"{name}"_s
                                                                      : action.renamePattern);
    case ActionType::addTag:
        return u"Tag "_s + label(action.tag);
    case ActionType::removeTag:
        return u"Remove %1 tag"_s.arg(label(action.tag));
    case ActionType::sortIntoSubfolder:
        return sortPhrase(action.sortBy);
    case ActionType::runShortcut:
        return u"Run shortcut “%1”"_s.arg(orEllipsis(action.shortcutName.value_or(QString())));
    case ActionType::runScript:
        return u"Run script"_s;
    case ActionType::renameWithDobbin:
    case ActionType::unpack:
    case ActionType::trash:
        break;
    }
    return rawValue(action.type);
}

QString summary(const Rule& rule) {
    const QString actions =
        rule.actions.empty() ? u"do nothing"_s : phrases(rule.actions).join(u", "_s);
    return conditionPart(rule) + u" → "_s + actions;
}

} // namespace quillon
