#include "ui/editor/ActionListModel.h"

#include "engine/RenamePattern.h"
#include "ui/ActionIcon.h"
#include "ui/editor/EditedRows.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The control that fits each type, in their order.
constexpr auto controls = std::to_array<std::u16string_view>(
    {u"folder", u"folder", u"pattern", u"example", u"tag", u"tag", u"strategy", u"keep",
     u"shortcut", u"script", u"none"});
static_assert(controls.size() == rawValues<ActionType>.size());

} // namespace

void ActionListModel::setActions(std::vector<RuleAction> actions) {
    beginResetModel();
    actions_ = std::move(actions);
    endResetModel();
    Q_EMIT edited();
}

void ActionListModel::setFolders(FolderChoices folders) {
    folders_ = std::move(folders);
    refresh({destinationRole});
}

void ActionListModel::setExample(std::optional<ExampleFile> file) {
    if (example_ == file)
        return;
    example_ = std::move(file);
    refresh({exampleRole});
    Q_EMIT tokensChanged();
}

int ActionListModel::add(int type) {
    const int row = count();
    beginInsertRows({}, row, row);
    actions_.push_back({.type = static_cast<ActionType>(type)});
    endInsertRows();
    Q_EMIT edited();
    return row;
}

void ActionListModel::remove(int row) {
    if (!has(row))
        return;
    beginRemoveRows({}, row, row);
    actions_.erase(actions_.begin() + row);
    endRemoveRows();
    refresh({spokenRole});
    Q_EMIT edited();
}

void ActionListModel::move(int from, int to) {
    if (!has(from) || !has(to) || from == to)
        return;
    beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
    moveElement(actions_, from, to);
    endMoveRows();
    refresh({spokenRole});
    Q_EMIT edited();
}

void ActionListModel::setType(int row, int index) {
    if (index >= 0 && index < int(controls.size()))
        change(row, [&](RuleAction& action) { action.type = ActionType(index); });
}

void ActionListModel::setDestination(int row, const QString& path) {
    change(row, [&](RuleAction& action) { action.destination = path; });
}

void ActionListModel::setPattern(int row, const QString& pattern) {
    change(row, [&](RuleAction& action) { action.renamePattern = pattern; });
}

void ActionListModel::setTag(int row, const QString& word) {
    if (const auto tag = fromRawValue<TagColor>(word))
        change(row, [&](RuleAction& action) { action.tag = *tag; });
}

void ActionListModel::setStrategy(int row, int index) {
    if (index >= 0 && index < int(rawValues<SortStrategy>.size()))
        change(row, [&](RuleAction& action) { action.sortBy = SortStrategy(index); });
}

void ActionListModel::setKeepOriginal(int row, bool keep) {
    change(row, [&](RuleAction& action) { action.keepOriginal = keep; });
}

void ActionListModel::setScript(int row, const QString& command) {
    change(row, [&](RuleAction& action) { action.scriptCommand = command; });
}

void ActionListModel::setShortcut(int row, const QString& name) {
    change(row, [&](RuleAction& action) { action.shortcutName = name; });
}

QVariantList ActionListModel::types() {
    QVariantList items;
    for (const ActionType type : allCases<ActionType>())
        items.append(QVariantMap{{u"text"_s, rawValue(type)}, {u"iconName"_s, actionIcon(type)}});
    return items;
}

QStringList ActionListModel::strategies() {
    return texts(allCases<SortStrategy>(), rawValue<SortStrategy>);
}

QStringList ActionListModel::tokens() const {
    QStringList tokens{u"{name}"_s,         u"{ext}"_s,     u"{date}"_s,     u"{datetime}"_s,
                       u"{date:yyyy-MM}"_s, u"{counter}"_s, u"{counter:3}"_s};
    if (example_ && !example_->captures.isEmpty())
        tokens.append(u"{1}"_s);
    return tokens;
}

int ActionListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant ActionListModel::data(const QModelIndex& index, int role) const {
    if (!has(index.row()))
        return {};
    const RuleAction& action = actions_[std::size_t(index.row())];
    switch (role) {
    case typeRole:
        return static_cast<int>(action.type);
    case controlRole:
        return toQString(controls[std::size_t(action.type)]);
    case destinationRole:
        return folders_.look(action.destination.value_or(QString()));
    case patternRole:
        return action.renamePattern;
    case exampleRole:
        return example(action);
    case tagRole:
        return rawValue(action.tag);
    case strategyRole:
        return static_cast<int>(action.sortBy);
    case keepRole:
        return action.keepOriginal;
    case scriptRole:
        return action.scriptCommand;
    case shortcutRole:
        return action.shortcutName.value_or(QString());
    case spokenRole:
        return tr("Action %1").arg(index.row() + 1);
    default:
        return {};
    }
}

QHash<int, QByteArray> ActionListModel::roleNames() const {
    return {
        {typeRole, "type"},         {controlRole, "control"},   {destinationRole, "destination"},
        {patternRole, "pattern"},   {exampleRole, "example"},   {tagRole, "tag"},
        {strategyRole, "strategy"}, {keepRole, "keepOriginal"}, {scriptRole, "script"},
        {shortcutRole, "shortcut"}, {spokenRole, "spoken"}};
}

QString ActionListModel::example(const RuleAction& action) const {
    const QString sentence = tr("For example %1", "a file name");
    if (action.type == ActionType::renameWithDobbin)
        return sentence.arg(tr("2026-10-14 Amazon invoice £42.pdf"));
    if (action.type != ActionType::rename || !example_)
        return {};
    const RenameSource source{.fileName = example_->name,
                              .date = example_->modified,
                              .counter = 1,
                              .captures = example_->captures};
    if (!dates_)
        dates_.emplace();
    return tr("For example %1 → %2", "the old and the new name of a file")
        .arg(QString::fromStdString(example_->name),
             QString::fromStdString(expand(action.renamePattern, source, *dates_)));
}

template <typename Edit>
void ActionListModel::change(int row, const Edit& edit) {
    if (!has(row))
        return;
    RuleAction action = actions_[std::size_t(row)];
    edit(action);
    if (action == actions_[std::size_t(row)])
        return;
    actions_[std::size_t(row)] = std::move(action);
    Q_EMIT dataChanged(index(row), index(row));
    Q_EMIT edited();
}

void ActionListModel::refresh(const QList<int>& roles) {
    if (!actions_.empty())
        Q_EMIT dataChanged(index(0), index(count() - 1), roles);
}

} // namespace quillon
