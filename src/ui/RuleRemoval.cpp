#include "ui/RuleRemoval.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(RuleRemoval)
};

} // namespace

void removeRule(const QUuid& ruleID, const QUuid& folderID, AppStore& store, Toasts& toasts) {
    const WatchedFolder* const folder = store.folder(folderID);
    if (!folder)
        return;
    const auto found = std::ranges::find(folder->rules, ruleID, &Rule::id);
    if (found == folder->rules.end())
        return;
    const auto next = found + 1;
    const QUuid before = next == folder->rules.end() ? QUuid() : next->id;
    const QString said = Texts::tr("“%1” deleted").arg(found->name);
    auto putBack = [&store, rule = *found, folderID, before] {
        store.saveRule(rule, folderID);
        if (!before.isNull())
            store.moveRuleBefore(before, rule.id, folderID);
    };
    store.deleteRule(ruleID, folderID);
    toasts.show(said, Texts::tr("Undo"), std::move(putBack));
}

} // namespace quillon
