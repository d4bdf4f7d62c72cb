#include "ui/review/SuggestionListModel.h"

#include "engine/RuleSummary.h"
#include "model/Uuid.h"
#include "store/PersistedState.h"
#include "ui/CountTexts.h"
#include "ui/UndoTexts.h"

#include <QPointer>
#include <QSet>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto pauseInChanges = 1s;

QString topicIcon(SuggestionTopic topic) {
    static constexpr auto names = std::to_array<std::u16string_view>({
        u"camera-photo",
        u"document-scan",
        u"package",
        u"archive-insert",
        u"office-chart-bar",
        u"download",
        u"view-group",
    });
    static_assert(names.size() == rawValues<SuggestionTopic>.size());
    return toQString(names[static_cast<std::size_t>(topic)]);
}

} // namespace

SuggestionListModel::SuggestionListModel(Surroundings around, QObject* parent)
    : KeyedRows(parent), around_(std::move(around)) {
    connect(&around_.store, &AppStore::selectedFolderIDChanged, this,
            &SuggestionListModel::refresh);
    connect(&around_.store, &AppStore::foldersChanged, this, [this] {
        const WatchedFolder* const folder = around_.store.folder(folderID_);
        if (!folder || folder->rules != rules_)
            refresh();
    });
    connect(&around_.store, &AppStore::runFinished, this, [this](const RunReport& report) {
        noteDeeds(report);
        if (report.folderID == folderID_ && !report.run.entries.empty())
            refresh();
    });
    refresh();
}

SuggestionListModel::~SuggestionListModel() {
    if (isWanted_)
        *isWanted_ = false;
}

void SuggestionListModel::refresh() {
    if (isWanted_)
        *isWanted_ = false;
    const QUuid selected = around_.store.selectedFolderID().value_or(QUuid());
    if (selected != folderID_) {
        folderID_ = selected;
        show({});
    }
    untilLook_ = around_.timers.after(pauseInChanges, [this] { look(); });
}

void SuggestionListModel::setWanted(bool wanted) {
    if (std::exchange(areWanted_, wanted) != wanted)
        refresh();
}

void SuggestionListModel::look() {
    untilLook_.reset();
    const WatchedFolder* const folder = around_.store.folder(folderID_);
    if (!folder)
        return show({});
    rules_ = folder->rules;
    const auto wanted = std::make_shared<bool>(true);
    isWanted_ = wanted;
    SuggestionRequest request{.folder = *folder};
    if (folder->onlyNewFiles)
        request.handled = around_.store.processedFiles().value(uuidText(folder->id));
    around_.suggestions().suggest(
        std::move(request), [this, wanted](const Expected<std::vector<RuleSuggestion>>& found) {
            if (*wanted)
                show(found.value_or(std::vector<RuleSuggestion>()));
        });
}

void SuggestionListModel::show(std::vector<RuleSuggestion> found) {
    found_ = std::move(found);
    std::vector<SuggestionRow> next;
    for (const RuleSuggestion& suggestion : found_)
        next.push_back({.key = suggestionID(suggestion),
                        .title = suggestion.rule.name,
                        .reason = suggestion.reason,
                        .sentence = summary(suggestion.rule),
                        .iconName = topicIcon(suggestion.topic),
                        .caution = suggestion.count > std::size_t(logCap)
                                       ? tr("Takes %1 at once. Undo reaches back over %L2 only.",
                                            "a number of files, and of entries")
                                             .arg(fileCount(suggestion.count))
                                             .arg(logCap)
                                       : QString()});
    const int before = count();
    setRows(next);
    if (count() != before)
        Q_EMIT countChanged();
}

void SuggestionListModel::add(const QString& key) {
    const auto found = std::ranges::find(found_, key, suggestionID);
    if (found == found_.end() || !around_.store.folder(folderID_))
        return;
    const Rule rule = found->rule;
    const auto deeds = std::make_shared<Deeds>(Deeds{.ruleID = rule.id, .folderID = folderID_});
    deeds_ = deeds;
    around_.store.addRules({rule}, folderID_, RuleSource::suggestion);
    around_.toasts.show(tr("“%1” added").arg(rule.name), tr("Undo"),
                        [this, deeds] { takeBack(deeds); });
}

/// Other rules may have the same name, and entries know no more of theirs.
void SuggestionListModel::noteDeeds(const RunReport& report) {
    const auto deeds = deeds_.lock();
    if (!deeds || report.folderID != deeds->folderID)
        return;
    QSet<QString> files;
    for (const HandledFile& file : report.run.handled)
        if (file.ruleID == deeds->ruleID)
            files.insert(keyPath(file.keyBefore));
    for (const LogEntry& entry : report.run.entries)
        if (entry.canUndo() && files.contains(*entry.originalPath))
            deeds->entryIDs.push_back(entry.id);
}

void SuggestionListModel::takeBack(const std::shared_ptr<Deeds>& deeds) {
    AppStore& store = around_.store;
    store.deleteRule(deeds->ruleID, deeds->folderID);
    // A run that is under way has the rule still.
    store.afterRuns(store.lastRunNumber(), [self = QPointer(this), deeds] {
        if (self && !deeds->entryIDs.empty())
            self->putBack(std::move(deeds->entryIDs));
    });
}

void SuggestionListModel::putBack(std::vector<QUuid> entryIDs) {
    around_.store.undo(std::move(entryIDs),
                       [toasts = QPointer(&around_.toasts)](const AppStore::UndoReport& report) {
                           if (const QString text = undoText(report); toasts && !text.isEmpty())
                               toasts->show(text);
                       });
}

void SuggestionListModel::dismiss(const QString& key) {
    const auto found = std::ranges::find(found_, key, suggestionID);
    const WatchedFolder* const folder = around_.store.folder(folderID_);
    if (found == found_.end() || !folder)
        return;
    struct Noted {
        SuggestionMemory::Kept kept;
    };
    const auto noted = std::make_shared<Noted>();
    around_.background.start(
        [noted, path = folder->path, keys = found->keys, now = around_.clock.now(),
         &memory = around_.memory] { noted->kept = memory.dismiss(path, keys, now); },
        [noted, toasts = QPointer(&around_.toasts)] {
            if (toasts && !noted->kept)
                toasts->show(tr("That can’t be remembered: %1").arg(noted->kept.error().message));
        });
    std::vector<RuleSuggestion> rest = found_;
    rest.erase(rest.begin() + (found - found_.begin()));
    show(std::move(rest));
}

} // namespace quillon
