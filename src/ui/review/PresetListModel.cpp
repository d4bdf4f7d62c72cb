#include "ui/review/PresetListModel.h"

#include "model/RulePresets.h"
#include "model/Uuid.h"
#include "ui/FolderLook.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// In the order of the presets.
constexpr auto icons = std::to_array<std::u16string_view>({
    u"view-list-icons",
    u"view-calendar-month",
    u"archive-extract",
    u"camera-photo",
    u"office-chart-bar",
    u"chronometer",
});

FolderLook lookIn(const AppStore& store, const QUuid& folderID) {
    const WatchedFolder* const folder = store.folder(folderID);
    return folder ? lookOf(*folder, store.folders()) : FolderLook();
}

} // namespace

PresetListModel::PresetListModel(AppStore& store, Sheets& sheets, QObject* parent)
    : KeyedRows(parent), store_(store), sheets_(sheets) {
    connect(&store, &AppStore::foldersChanged, this, &PresetListModel::refresh);
}

void PresetListModel::open(const QString& folderId) {
    const auto id = uuidFromText(folderId);
    if (!id || !store_.folder(*id))
        return;
    folderID_ = *id;
    refresh();
    Q_EMIT opened();
    sheets_.open(u"PresetsSheet"_s);
}

void PresetListModel::add(const QString& key) {
    const PresetRow* const offered = row(key);
    if (!offered || offered->isAdded)
        return;
    for (const Preset& preset : rulePresets())
        if (preset.title == key)
            store_.addRules({preset.rule}, folderID_, RuleSource::preset);
}

QString PresetListModel::folderName() const {
    const WatchedFolder* const folder = store_.folder(folderID_);
    return folder ? folder->name() : QString();
}

int PresetListModel::tint() const {
    return lookIn(store_, folderID_).tint;
}

QString PresetListModel::symbol() const {
    return lookIn(store_, folderID_).symbol;
}

void PresetListModel::refresh() {
    const WatchedFolder* const folder = store_.folder(folderID_);
    if (!folder)
        return setRows({});
    std::vector<PresetRow> next;
    for (const Preset& preset : rulePresets())
        next.push_back({.key = preset.title,
                        .sentence = preset.description,
                        .iconName = toQString(icons[std::min(next.size(), icons.size() - 1)]),
                        .isAdded = std::ranges::find(folder->rules, preset.rule.name,
                                                     &Rule::name) != folder->rules.end()});
    setRows(next);
}

} // namespace quillon
