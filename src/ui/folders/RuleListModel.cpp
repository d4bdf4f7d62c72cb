#include "ui/folders/RuleListModel.h"

#include "engine/RuleChecks.h"
#include "engine/RuleSummary.h"
#include "model/Uuid.h"
#include "ui/ActionIcon.h"
#include "ui/RuleRemoval.h"
#include "ui/editor/EditedRows.h"

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

QUuid idOf(const QString& key) {
    return uuidFromText(key).value_or(QUuid());
}

} // namespace

RuleListModel::RuleListModel(AppStore& store, Toasts& toasts, QObject* parent)
    : KeyedRows(parent), store_(store), toasts_(toasts) {}

void RuleListModel::show(const QUuid& folderID) {
    folderID_ = folderID;
    const WatchedFolder* const folder = store_.folder(folderID);
    const std::vector<Rule> none;
    const std::vector<Rule>& rules = folder ? folder->rules : none;
    std::vector<RuleRow> next;
    for (const Rule& rule : rules) {
        const QString sentence = summary(rule);
        RuleRow row{.key = uuidText(rule.id),
                    .name = rule.name,
                    .iconName = rule.actions.empty() ? u"list-add"_s
                                                     : actionIcon(rule.actions.front().type),
                    .conditionText = sentence.section(u" → "_s, 0, 0),
                    .actionText = sentence.section(u" → "_s, 1),
                    .warnings = validationWarnings(rule),
                    .asksDobbin = rule.needsDobbin(),
                    .isEnabled = rule.isEnabled};
        const QString place =
            tr("Rule %1 of %2", "of a list").arg(next.size() + 1).arg(rules.size());
        QStringList facts{sentence, (rule.isEnabled ? tr("%1, on", "“Rule 2 of 4”, switched on")
                                                    : tr("%1, off", "“Rule 2 of 4”, switched off"))
                                        .arg(place)};
        facts += row.warnings;
        row.description = facts.join(u". "_s);
        next.push_back(std::move(row));
    }
    setRows(next);
}

void RuleListModel::setEnabled(const QString& key, bool enabled) {
    store_.setRuleEnabled(enabled, idOf(key), folderID_);
}

void RuleListModel::duplicate(const QString& key) {
    store_.duplicateRule(idOf(key), folderID_);
}

void RuleListModel::remove(const QString& key) {
    removeRule(idOf(key), folderID_, store_, toasts_);
}

void RuleListModel::moveBefore(const QString& key, int row) {
    const WatchedFolder* const folder = store_.folder(folderID_);
    if (!folder)
        return;
    std::vector<QUuid> order;
    for (const Rule& rule : folder->rules)
        order.push_back(rule.id);
    const auto found = std::ranges::find(order, idOf(key));
    if (found != order.end() && moveElementBefore(order, int(found - order.begin()), row))
        store_.reorderRules(folderID_, order);
}

void RuleListModel::moveBy(const QString& key, int offset) {
    store_.moveRuleBy(offset, idOf(key), folderID_);
}

} // namespace quillon
