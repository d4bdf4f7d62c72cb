#include "assistant/RuleWriter.h"

#include "assistant/RuleDestination.h"
#include "assistant/RuleName.h"
#include "assistant/RuleWriterActions.h"
#include "assistant/RuleWriterPrompt.h"
#include "assistant/ValueWarnings.h"
#include "assistant/backends/AIError.h"
#include "engine/RuleChecks.h"
#include "engine/RuleSummary.h"
#include "model/JsonFields.h"
#include "model/JsonText.h"

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t mostConditions = 50;
constexpr std::size_t mostActions = 20;

struct SaidCondition {
    QString attribute = {};
    QString op = {};
    QString value = {};
    QString sizeUnit = {};
};

struct SaidAction {
    QString type = {};
    QString destination = {};
    QString renamePattern = {};
    QString tag = {};
    QString sortBy = {};
};

/// The answer as it is written.
struct SaidRule {
    QString name = {};
    QString matchMode = {};
    std::vector<SaidCondition> conditions = {};
    std::vector<SaidAction> actions = {};
    QString note = {};
};

Expected<SaidCondition> saidCondition(const JsonReader& json) {
    SaidCondition said;
    JsonFields fields(json);
    fields.required("attribute"_L1, said.attribute);
    fields.required("operator"_L1, said.op);
    fields.required("value"_L1, said.value);
    fields.required("sizeUnit"_L1, said.sizeUnit);
    return fields.result(std::move(said));
}

Expected<SaidAction> saidAction(const JsonReader& json) {
    SaidAction said;
    JsonFields fields(json);
    fields.required("type"_L1, said.type);
    fields.required("destination"_L1, said.destination);
    fields.required("renamePattern"_L1, said.renamePattern);
    fields.required("tag"_L1, said.tag);
    fields.required("sortBy"_L1, said.sortBy);
    return fields.result(std::move(said));
}

Expected<SaidRule> saidRule(const QString& answer) {
    const auto value = parseJson(answer.toUtf8());
    if (!value)
        return std::unexpected(value.error());
    const JsonReader json(*value);
    SaidRule said;
    JsonFields fields(json);
    fields.required("name"_L1, said.name);
    fields.required("matchMode"_L1, said.matchMode);
    fields.requiredList("conditions"_L1, said.conditions, saidCondition);
    fields.requiredList("actions"_L1, said.actions, saidAction);
    fields.required("note"_L1, said.note);
    return fields.result(std::move(said));
}

/// ".DMG" becomes "dmg".
QString bareExtension(QStringView text) {
    const auto isEdge = [](QChar c) { return c.isSpace() || c == u'.'; };
    while (!text.isEmpty() && isEdge(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isEdge(text.back()))
        text.chop(1);
    return text.toString().toLower();
}

/// Nothing when it is about something that a rule can't look at. Another comparison than the one
/// that was said may be the opposite of it, and is told.
std::optional<Condition> conditionFrom(const SaidCondition& said, QStringList& warnings) {
    const auto attribute = fromRawValue<ConditionAttribute>(said.attribute);
    if (!attribute)
        return std::nullopt;
    const std::vector<MatchOperator> allowed = allowedOperators(*attribute);
    const auto op = fromRawValue<MatchOperator>(said.op);
    const bool isAllowed = op && std::ranges::find(allowed, *op) != allowed.end();
    Condition condition{.attribute = *attribute,
                        .op = isAllowed ? *op : allowed.front(),
                        .value = *attribute == ConditionAttribute::extension
                                     ? bareExtension(said.value)
                                     : said.value,
                        .unit = fromRawValue<SizeUnit>(said.sizeUnit).value_or(SizeUnit::mb)};
    if (!isAllowed)
        warnings.append(
            u"Dobbin compared “%1” by %2, which it doesn't have. The condition now reads “%3”, "
            "which may be the opposite of what you meant."_s.arg(
                rawValue(*attribute), quotedForError(said.op), summaryText(condition)));
    return condition;
}

/// Nothing when it is something that a rule of the assistant's may not do, or a tag of a colour
/// that there isn't: any other colour would be made up.
std::optional<RuleAction> actionFrom(const SaidAction& said, const RulePlace& place) {
    const auto type = fromRawValue<ActionType>(said.type);
    if (!type || std::ranges::find(writableActions, *type) == writableActions.end())
        return std::nullopt;
    RuleAction action{.type = *type};
    const auto color = fromRawValue<TagColor>(said.tag);
    switch (*type) {
    case ActionType::move:
    case ActionType::copy:
        action.destination = resolveDestination(said.destination, place);
        break;
    case ActionType::rename:
        if (!said.renamePattern.isEmpty())
            action.renamePattern = said.renamePattern;
        break;
    case ActionType::addTag:
    case ActionType::removeTag:
        if (!color)
            return std::nullopt;
        action.tag = *color;
        break;
    case ActionType::sortIntoSubfolder:
        action.sortBy = fromRawValue<SortStrategy>(said.sortBy).value_or(action.sortBy);
        break;
    default:
        break;
    }
    return action;
}

void addConditions(RuleDraft& draft, const SaidRule& said) {
    std::vector<Condition>& conditions = draft.rule.conditions;
    conditions.clear();
    for (const SaidCondition& each : said.conditions)
        if (auto condition = conditionFrom(each, draft.warnings))
            conditions.push_back(*std::move(condition));
    if (conditions.size() == said.conditions.size())
        return;
    draft.warnings.append(
        conditions.empty()
            ? u"Dobbin asked only for things that a rule can't look at, so no condition is left."_s
            : u"Dobbin asked for something that a rule can't look at. That condition is left out, "
              "so the rule may catch other files than you meant."_s);
}

void addActions(RuleDraft& draft, const SaidRule& said, const RulePlace& place) {
    std::vector<RuleAction>& actions = draft.rule.actions;
    actions.clear();
    bool isComplete = true;
    for (const SaidAction& each : said.actions) {
        const auto action = actionFrom(each, place);
        isComplete = isComplete && action;
        if (action && std::ranges::find(actions, action->type, &RuleAction::type) == actions.end())
            actions.push_back(*action);
    }
    if (!isComplete)
        draft.warnings.append(
            u"Dobbin asked for something that its rules can't do. That step is left out."_s);
}

void addDestinationWarnings(RuleDraft& draft, const RulePlace& place, const Platform& platform) {
    for (const RuleAction& action : draft.rule.actions)
        if (action.destination)
            if (const auto warning = destinationWarning(*action.destination, place, platform))
                draft.warnings.append(*warning);
}

} // namespace

AIRequest ruleRequest(const QString& sentence, const RulePlace& place) {
    QStringList others;
    for (const WatchedFolder& folder : place.otherFolders)
        others.append(folder.name());
    return {.system = ruleWriterPrompt(place.folder.name(), others),
            .messages = {{.role = AIMessage::Role::user, .text = sentence}},
            .schema = ruleWriterSchema()};
}

Expected<RuleDraft> draftFromJson(const QString& answer, const RulePlace& place,
                                  const Platform& platform) {
    const auto said = saidRule(answer);
    if (!said || said->conditions.size() > mostConditions || said->actions.size() > mostActions)
        return std::unexpected(asError({.kind = AIError::Kind::badResponse}));
    RuleDraft draft{.rule = {}, .note = said->note};
    draft.rule.matchMode = fromRawValue<MatchMode>(said->matchMode).value_or(MatchMode::all);
    addConditions(draft, *said);
    addActions(draft, *said, place);
    if (draft.rule.actions.empty())
        return std::unexpected(asError({.kind = AIError::Kind::badResponse}));
    draft.rule.name = ruleName(said->name, draft.rule);
    draft.warnings += validationWarnings(draft.rule) + valueWarnings(draft.rule);
    addDestinationWarnings(draft, place, platform);
    draft.needsConsent = !draft.warnings.isEmpty();
    return draft;
}

} // namespace quillon
