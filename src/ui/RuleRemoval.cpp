#include "ui/RuleRemoval.h"

#include <QCoreApplication>

#include <algorithm>

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
    const Rule rule = *found;
    const auto next = found + 1;
    const QUuid before = next == folder->rules.end() ? QUuid() : next->id;
    store.deleteRule(ruleID, folderID);
    toasts.show(Texts::tr("“%1” deleted").arg(rule.name), Texts::tr("Undo"),
                [&store, rule, folderID, before] {
                    store.saveRule(rule, folderID);
                    if (!before.isNull())
                        store.moveRuleBefore(before, rule.id, folderID);
                });
}

} // namespace quillon
