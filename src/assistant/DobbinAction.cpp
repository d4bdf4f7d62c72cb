#include "assistant/DobbinAction.h"

#include "assistant/PlainLine.h"
#include "assistant/PromptLine.h"
#include "assistant/RawAction.h"
#include "model/JsonFields.h"
#include "model/JsonWriter.h"
#include "model/Uuid.h"
#include "store/RuleEdits.h"

#include <QJsonArray>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

using Kind = DobbinAction::Kind;

constexpr qsizetype longestDescription = 1000;

QString nameOf(const WatchedFolder& folder) {
    return folder.name();
}

QString nameOf(const Rule& rule) {
    return rule.name;
}

/// Models like to put names into quotation marks.
QStringView withoutQuotes(QStringView name) {
    const auto isEdge = [](QChar c) { return QStringView(u" “”\"'").contains(c); };
    while (!name.isEmpty() && isEdge(name.front()))
        name = name.sliced(1);
    while (!name.isEmpty() && isEdge(name.back()))
        name.chop(1);
    return name;
}

/// The first one of that name, letter case ignored; else the first that was shown to the model so.
template <typename Named>
const Named* find(const std::vector<Named>& all, const QString& name) {
    const QStringView wanted = withoutQuotes(name);
    if (wanted.isEmpty())
        return nullptr;
    const auto isWanted = [&](QStringView other) {
        return wanted.compare(other, Qt::CaseInsensitive) == 0;
    };
    auto found = std::ranges::find_if(all, [&](const Named& one) { return isWanted(nameOf(one)); });
    if (found == all.end())
        found = std::ranges::find_if(all, [&](const Named& one) {
            const QString shown = promptName(nameOf(one));
            return isWanted(withoutQuotes(shown));
        });
    return found == all.end() ? nullptr : &*found;
}

/// Nothing when the rules are in that order already.
std::optional<std::vector<QUuid>> newOrder(const QStringList& names,
                                           const std::vector<Rule>& rules) {
    std::vector<QUuid> order;
    for (const QString& name : names)
        if (const Rule* const rule = find(rules, name);
            rule && std::ranges::find(order, rule->id) == order.end())
            order.push_back(rule->id);
    std::vector<Rule> sorted = rules;
    reorderRules(sorted, order);
    return sorted == rules ? std::nullopt : std::optional(order);
}

Expected<QUuid> idFromJson(const JsonReader& json) {
    return json.read<QUuid>();
}

} // namespace

QString DobbinAction::label() const {
    switch (kind) {
    case Kind::reorderRules:
        return u"Reorder rules in "_s + folderName;
    case Kind::turnOnRule:
        return u"Turn on “"_s + ruleName.value_or(QString()) + u'”';
    case Kind::turnOffRule:
        return u"Turn off “"_s + ruleName.value_or(QString()) + u'”';
    case Kind::runFolder:
        return u"Run "_s + folderName + u" now"_s;
    case Kind::writeRule:
        return u"Write this rule for "_s + folderName;
    }
    return {};
}

QJsonObject toJson(const DobbinAction& action) {
    QJsonObject object{{"kind"_L1, rawValue(action.kind)},
                       {"folderID"_L1, uuidText(action.folderID)},
                       {"folderName"_L1, action.folderName},
                       {"done"_L1, action.done}};
    insertIfPresent(object, "ruleID"_L1, action.ruleID);
    insertIfPresent(object, "ruleName"_L1, action.ruleName);
    insertIfPresent(object, "description"_L1, action.description);
    if (action.ruleOrder) {
        QJsonArray order;
        for (const QUuid& id : *action.ruleOrder)
            order.append(uuidText(id));
        object.insert("ruleOrder"_L1, order);
    }
    return object;
}

Expected<DobbinAction> dobbinActionFromJson(const JsonReader& json) {
    DobbinAction action;
    std::vector<QUuid> order;
    JsonFields fields(json);
    fields.required("kind"_L1, action.kind);
    fields.required("folderID"_L1, action.folderID);
    fields.optional("folderName"_L1, action.folderName);
    fields.optional("ruleID"_L1, action.ruleID);
    fields.optional("ruleName"_L1, action.ruleName);
    fields.optionalList("ruleOrder"_L1, order, idFromJson);
    fields.optional("description"_L1, action.description);
    fields.optional("done"_L1, action.done);
    if (json.member("ruleOrder"_L1))
        action.ruleOrder = std::move(order);
    return fields.result(std::move(action));
}

std::optional<DobbinAction> resolve(const RawAction& raw,
                                    const std::vector<WatchedFolder>& folders) {
    const auto kind = fromRawValue<Kind>(raw.type);
    const WatchedFolder* const folder = find(folders, raw.folder);
    if (!kind || !folder)
        return std::nullopt;
    DobbinAction action{.kind = *kind, .folderID = folder->id, .folderName = folder->name()};
    switch (*kind) {
    case Kind::turnOnRule:
    case Kind::turnOffRule: {
        const Rule* const rule = find(folder->rules, raw.rule);
        if (!rule)
            return std::nullopt;
        action.ruleID = rule->id;
        action.ruleName = rule->name;
        return action;
    }
    case Kind::reorderRules:
        action.ruleOrder = newOrder(raw.ruleOrder, folder->rules);
        return action.ruleOrder ? std::optional(action) : std::nullopt;
    case Kind::writeRule: {
        const QString description =
            cutTo(plainLine(raw.description).simplified(), longestDescription);
        action.description = description;
        return description.isEmpty() ? std::nullopt : std::optional(action);
    }
    case Kind::runFolder:
        return action;
    }
    return std::nullopt;
}

} // namespace quillon
