#include "ui/editor/ConditionListModel.h"

#include "model/FileKind.h"
#include "ui/editor/EditedRows.h"
#include "ui/editor/ValueEditor.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename E>
int indexOf(const std::vector<E>& list, E value) {
    return static_cast<int>(std::ranges::find(list, value) - list.begin());
}

QString placeholder(const Condition& condition) {
    switch (valueEditor(condition.attribute, condition.op)) {
    case ValueEditor::question:
        return ConditionListModel::tr("a receipt or invoice");
    case ValueEditor::date:
        return ConditionListModel::tr("2026-10-14", "an example of a date");
    default:
        break;
    }
    switch (condition.attribute) {
    case ConditionAttribute::extension:
        return ConditionListModel::tr("pdf", "an example of a file extension");
    case ConditionAttribute::whereFrom:
        return ConditionListModel::tr("amazon.com", "an example of a web site");
    default:
        return {};
    }
}

QString dayWord(const QString& number) {
    const int days = number.toInt();
    return days == 1 ? ConditionListModel::tr("day", "after a number of days")
                     : ConditionListModel::tr("days", "after a number of days", days);
}

} // namespace

void ConditionListModel::setConditions(std::vector<Condition> conditions) {
    beginResetModel();
    conditions_ = std::move(conditions);
    isChecked_ = false;
    endResetModel();
    Q_EMIT edited();
}

void ConditionListModel::setMatchMode(MatchMode mode) {
    mode_ = mode;
    rowsMoved();
}

int ConditionListModel::check() {
    // What is saved from the keyboard may still be as it was typed.
    for (int row = 0; row < count(); ++row)
        finishValue(row);
    isChecked_ = true;
    rowsMoved();
    const auto wrong = std::ranges::find_if(
        conditions_, [this](const Condition& condition) { return !error(condition).isEmpty(); });
    return wrong == conditions_.end() ? -1 : static_cast<int>(wrong - conditions_.begin());
}

int ConditionListModel::add() {
    const int row = count();
    beginInsertRows({}, row, row);
    conditions_.push_back({});
    endInsertRows();
    Q_EMIT edited();
    return row;
}

void ConditionListModel::remove(int row) {
    if (!has(row))
        return;
    beginRemoveRows({}, row, row);
    conditions_.erase(conditions_.begin() + row);
    endRemoveRows();
    rowsMoved();
    Q_EMIT edited();
}

void ConditionListModel::move(int from, int to) {
    if (!has(from) || !has(to) || from == to)
        return;
    beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
    moveElement(conditions_, from, to);
    endMoveRows();
    rowsMoved();
    Q_EMIT edited();
}

void ConditionListModel::setAttribute(int row, int index) {
    if (has(row) && index >= 0 && index < int(rawValues<ConditionAttribute>.size()))
        change(row, withAttribute(conditions_[std::size_t(row)], ConditionAttribute(index)));
}

void ConditionListModel::setOperator(int row, int index) {
    if (!has(row))
        return;
    const Condition& condition = conditions_[std::size_t(row)];
    const std::vector<MatchOperator> offered = operators(condition);
    if (index >= 0 && index < int(offered.size()))
        change(row, withOperator(condition, offered[std::size_t(index)]));
}

void ConditionListModel::setValue(int row, const QString& text) {
    if (!has(row))
        return;
    Condition condition = conditions_[std::size_t(row)];
    condition.value = text;
    change(row, condition);
}

void ConditionListModel::setChoice(int row, int index) {
    if (index >= 0 && index < int(rawValues<FileKind>.size()))
        setValue(row, rawValue(FileKind(index)));
}

void ConditionListModel::setUnit(int row, int index) {
    if (!has(row) || index < 0 || index >= int(rawValues<SizeUnit>.size()))
        return;
    Condition condition = conditions_[std::size_t(row)];
    condition.unit = SizeUnit(index);
    change(row, condition);
}

void ConditionListModel::finishValue(int row) {
    if (has(row))
        setValue(row, storedValue(conditions_[std::size_t(row)]));
}

QStringList ConditionListModel::attributes() {
    return texts(allCases<ConditionAttribute>(), rawValue<ConditionAttribute>);
}

QStringList ConditionListModel::kinds() {
    return texts(allCases<FileKind>(), [](FileKind kind) { return label(kind); });
}

QStringList ConditionListModel::units() {
    return texts(allCases<SizeUnit>(), rawValue<SizeUnit>);
}

int ConditionListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant ConditionListModel::data(const QModelIndex& index, int role) const {
    if (!has(index.row()))
        return {};
    const Condition& condition = conditions_[std::size_t(index.row())];
    switch (role) {
    case attributeRole:
        return static_cast<int>(condition.attribute);
    case operatorsRole:
        return texts(operators(condition), rawValue<MatchOperator>);
    case operatorRole:
        return indexOf(operators(condition), condition.op);
    case editorRole:
        return valueEditorName(valueEditor(condition.attribute, condition.op));
    case valueRole:
        return condition.value;
    case placeholderRole:
        return placeholder(condition);
    case tailRole:
        return dayWord(condition.value);
    case choiceRole: {
        const auto kind = fromRawValue<FileKind>(condition.value);
        return kind ? static_cast<int>(*kind) : -1;
    }
    case unitRole:
        return static_cast<int>(condition.unit.value_or(SizeUnit::mb));
    case errorRole:
        return error(condition);
    case joinerRole:
        return joiner(index.row());
    case spokenRole:
        return tr("Condition %1").arg(index.row() + 1);
    default:
        return {};
    }
}

QHash<int, QByteArray> ConditionListModel::roleNames() const {
    return {{attributeRole, "attribute"},
            {operatorsRole, "operators"},
            {operatorRole, "operatorIndex"},
            {editorRole, "editor"},
            {valueRole, "value"},
            {placeholderRole, "placeholder"},
            {tailRole, "tail"},
            {choiceRole, "choice"},
            {unitRole, "unit"},
            {errorRole, "error"},
            {joinerRole, "joiner"},
            {spokenRole, "spoken"}};
}

/// Those that people may choose, and the one that a rule from elsewhere has all the same.
std::vector<MatchOperator> ConditionListModel::operators(const Condition& condition) const {
    std::vector<MatchOperator> offered = allowedOperators(condition.attribute);
    if (std::ranges::find(offered, condition.op) == offered.end())
        offered.push_back(condition.op);
    return offered;
}

QString ConditionListModel::joiner(int row) const {
    if (row == 0)
        return {};
    return mode_ == MatchMode::all ? tr("and") : tr("or");
}

QString ConditionListModel::error(const Condition& condition) const {
    const QString wrong = valueError(condition);
    return wrong.isEmpty() && isChecked_ ? missingValue(condition) : wrong;
}

void ConditionListModel::change(int row, const Condition& condition) {
    if (conditions_[std::size_t(row)] == condition)
        return;
    conditions_[std::size_t(row)] = condition;
    Q_EMIT dataChanged(index(row), index(row));
    Q_EMIT edited();
}

/// What a row shows depends on where it stands.
void ConditionListModel::rowsMoved() {
    if (!conditions_.empty())
        Q_EMIT dataChanged(index(0), index(count() - 1), {joinerRole, spokenRole, errorRole});
}

} // namespace quillon
