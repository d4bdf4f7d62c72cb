#include "assistant/DobbinAction.h"
#include "store/AppStore.h"
#include "store/RuleEdits.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

using Kind = DobbinAction::Kind;

QString quoted(const QString& name) {
    return u'“' + name + u'”';
}

std::unexpected<Error> gone(const QString& what) {
    return failure(ErrorKind::notFound, what);
}

/// What has been done, unless it can't be saved.
Expected<QString> saved(const AppStore& store, const QString& sentence) {
    if (const auto& error = store.lastSaveError())
        return std::unexpected(*error);
    return sentence;
}

Expected<QString> turn(bool on, const DobbinAction& action, const WatchedFolder& folder,
                       AppStore& store) {
    const Rule* const rule = action.ruleID ? findRule(folder.rules, *action.ruleID) : nullptr;
    if (!rule)
        return gone(u"The rule %1 is no longer in %2"_s.arg(
            quoted(action.ruleName.value_or(QString())), folder.name()));
    const QString state = on ? u"on"_s : u"off"_s;
    const QString name = quoted(rule->name);
    if (rule->isEnabled == on)
        return u"%1 is %2 already"_s.arg(name, state);
    store.setRuleEnabled(on, *action.ruleID, action.folderID);
    return saved(store, u"%1 is now %2"_s.arg(name, state));
}

Expected<QString> reorder(const DobbinAction& action, const WatchedFolder& folder,
                          AppStore& store) {
    const std::vector<QUuid> order = action.ruleOrder.value_or(std::vector<QUuid>());
    const bool allThere = std::ranges::all_of(
        order, [&](const QUuid& id) { return findRule(folder.rules, id) != nullptr; });
    if (order.empty() || !allThere)
        return gone(u"The rules of %1 have changed since; ask Dobbin again"_s.arg(folder.name()));
    const QString name = folder.name();
    std::vector<Rule> sorted = folder.rules;
    reorderRules(sorted, order);
    if (sorted == folder.rules)
        return u"The rules of %1 are in that order already"_s.arg(name);
    store.reorderRules(action.folderID, order);
    return saved(store, u"The rules of %1 are in their new order"_s.arg(name));
}

} // namespace

Expected<QString> apply(const DobbinAction& action, AppStore& store) {
    if (action.done)
        return failure(ErrorKind::changed, u"That has been done already"_s);
    const WatchedFolder* const folder = store.folder(action.folderID);
    if (!folder)
        return gone(quoted(action.folderName) + u" is no longer watched"_s);
    switch (action.kind) {
    case Kind::turnOnRule:
    case Kind::turnOffRule:
        return turn(action.kind == Kind::turnOnRule, action, *folder, store);
    case Kind::reorderRules:
        return reorder(action, *folder, store);
    case Kind::runFolder: {
        const QString name = folder->name();
        store.runRules(action.folderID, RunCause::asked);
        return u"%1 is being tidied"_s.arg(name);
    }
    case Kind::writeRule:
        break;
    }
    return u"Nothing changes until the rule has been written and saved"_s;
}

} // namespace quillon
