#include "assistant/SuggestedChanges.h"

#include "assistant/RawAction.h"
#include "model/JsonText.h"
#include "store/JsonStream.h"
#include "store/RuleEdits.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestAnswer = 100'000;

constexpr QStringView extraction =
    u"Read Dobbin's answer and list the changes it suggests that Quillon can make: "
    "reorderRules (give every rule name in the folder in the new order), turnOnRule, "
    "turnOffRule, runFolder or writeRule (describe the rule in one sentence). Use "
    "folder and rule names exactly as they appear in the Rules list. If the answer "
    "suggests no such change, return an empty list.";

bool isReorderOf(const DobbinAction& action, const QUuid& folderID) {
    return action.kind == DobbinAction::Kind::reorderRules && action.folderID == folderID;
}

/// The list of changes in a model's answer; nothing when it can't be read.
std::optional<QJsonArray> listIn(const QString& json) {
    if (json.size() > longestAnswer)
        return std::nullopt;
    const auto answer = parseJson(json.toUtf8());
    if (!answer)
        return std::nullopt;
    const QJsonValue list = answer->isArray() ? *answer : (*answer)["actions"_L1];
    return list.isArray() ? std::optional(list.toArray()) : std::nullopt;
}

/// The rules in the order in which the later one comes directly before the earlier one; nothing
/// when they are in such an order by now.
std::optional<std::vector<QUuid>> fixedOrder(std::vector<Rule> rules,
                                             const RuleConflict& conflict) {
    const auto earlier = std::ranges::find(rules, conflict.earlierID, &Rule::id);
    const auto later = std::ranges::find(rules, conflict.laterID, &Rule::id);
    if (earlier == rules.end() || later == rules.end() || later <= earlier)
        return std::nullopt;
    moveRuleBefore(rules, conflict.laterID, conflict.earlierID);
    std::vector<QUuid> order;
    for (const Rule& rule : rules)
        order.push_back(rule.id);
    return order;
}

} // namespace

bool suggestsChange(const QString& answer) {
    static const QRegularExpression pattern(
        u"\\b(?:above|below|ahead of|underneath|reorder(?:ing)?|re-order(?:ing)?|"
        "(?:turn|switch)(?:ing)? (?:it |them |that |this |the |“[^”]*” |\"[^\"]*\" |\\S+ "
        "){0,4}(?:back )?(?:on|off)|"
        "(?:en|dis)abl(?:e|ing)|run(?:ning)? .{0,60}\\bnow|"
        "(?:new|another|separate) rule|(?:write|add|create|make|set up|writing|adding|creating) "
        "(?:a|an|one|the|this|that)\\b.{0,40}\\brule|"
        "(?:move|put|drag|place)(?:ing)? "
        ".{1,120}\\b(?:before|after|first|last|up|down|top|bottom)\\b|"
        "come(?:s)? (?:before|after|first))\\b"_s,
        QRegularExpression::CaseInsensitiveOption);
    return pattern.match(answer.left(longestAnswer)).hasMatch();
}

QString extractionPrompt() {
    return extraction.toString();
}

QString extractionMessage(const QString& composed, const QString& answer) {
    return composed + u"\n\nDobbin answered: "_s + answer;
}

QByteArray actionsOnlySchema() {
    return "{\"type\":\"object\",\"properties\":{\"actions\":" + rawActionsSchema() +
           "},\"required\":[\"actions\"],\"additionalProperties\":false}";
}

std::vector<DobbinAction> actionsFromJson(const QString& json,
                                          const std::vector<WatchedFolder>& folders) {
    std::vector<DobbinAction> actions;
    const QJsonArray list = listIn(json).value_or(QJsonArray());
    for (const QJsonValue& value : list) {
        const auto action = resolve(rawActionFromJson(value), folders);
        if (action && std::ranges::find(actions, *action) == actions.end())
            actions.push_back(*action);
        if (actions.size() == mostActions)
            break;
    }
    return actions;
}

bool saysNoChange(const QString& json) {
    const auto list = listIn(json);
    return list && list->isEmpty();
}

std::vector<DobbinAction> fixes(const std::vector<RuleConflict>& conflicts,
                                const std::vector<DobbinAction>& shownWith,
                                const std::vector<WatchedFolder>& folders) {
    std::vector<DobbinAction> fixes;
    const auto isReordered = [&](const QUuid& folderID) {
        const auto is = [&](const DobbinAction& action) { return isReorderOf(action, folderID); };
        return std::ranges::any_of(shownWith, is) || std::ranges::any_of(fixes, is);
    };
    for (const RuleConflict& conflict : conflicts) {
        if (shownWith.size() + fixes.size() >= mostActions)
            break;
        const auto folder = std::ranges::find(folders, conflict.folderID, &WatchedFolder::id);
        if (folder == folders.end() || isReordered(conflict.folderID))
            continue;
        if (auto order = fixedOrder(folder->rules, conflict))
            fixes.push_back({.kind = DobbinAction::Kind::reorderRules,
                             .folderID = folder->id,
                             .folderName = folder->name(),
                             .ruleOrder = std::move(order)});
    }
    return fixes;
}

} // namespace quillon
