#include "ui/history/HistoryModel.h"

#include "model/Uuid.h"
#include "ui/ProgressRelay.h"
#include "ui/UndoTexts.h"

#include <QPointer>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView sheetName("HistorySheet");

} // namespace

HistoryModel::HistoryModel(const Surroundings& around, QObject* parent)
    : KeyedRows(parent), around_(around) {
    for (const auto signal :
         {&AppStore::recentLogsChanged, &AppStore::foldersChanged, &AppStore::dayChanged})
        connect(&around.store, signal, this, &HistoryModel::refresh);
    connect(&around.sheets, &Sheets::currentChanged, this, [this] {
        if (isShown_ && around_.sheets.current() != sheetName) {
            isShown_ = false;
            refresh();
        }
    });
}

HistoryModel::~HistoryModel() = default;

void HistoryModel::open(const QString& folderID) {
    show({.folderID = uuidFromText(folderID)});
}

void HistoryModel::openErrors(const QString& folderID) {
    show({.folderID = uuidFromText(folderID), .outcome = HistoryFilter::Outcome::errors});
}

void HistoryModel::show(HistoryFilter filter) {
    around_.sheets.open(sheetName);
    if (around_.sheets.current() != sheetName)
        return;
    isShown_ = true;
    setFilter(std::move(filter));
}

void HistoryModel::setSearchText(const QString& words) {
    HistoryFilter filter = filter_;
    filter.words = words;
    if (filter != filter_)
        setFilter(std::move(filter));
}

QStringList HistoryModel::folderNames() const {
    QStringList names{tr("All folders")};
    for (const WatchedFolder& folder : around_.store.folders())
        names.append(folder.name());
    return names;
}

int HistoryModel::folderIndex() const {
    const std::vector<WatchedFolder>& folders = around_.store.folders();
    const auto found = std::ranges::find(
        folders, filter_.folderID, [](const auto& folder) { return std::optional(folder.id); });
    return found == folders.end() ? 0 : int(found - folders.begin()) + 1;
}

void HistoryModel::setFolderIndex(int index) {
    const std::vector<WatchedFolder>& folders = around_.store.folders();
    HistoryFilter filter = filter_;
    filter.folderID = index > 0 && std::size_t(index) <= folders.size()
                          ? std::optional(folders[std::size_t(index) - 1].id)
                          : std::nullopt;
    setFilter(std::move(filter));
}

void HistoryModel::setOutcome(int outcome) {
    HistoryFilter filter = filter_;
    filter.outcome = HistoryFilter::Outcome(std::clamp(outcome, 0, 2));
    setFilter(std::move(filter));
}

void HistoryModel::clearFilter() {
    setFilter({});
}

void HistoryModel::setFilter(HistoryFilter filter) {
    // What was turned is kept while the same is looked for with other words.
    if (filter.isOpen() != filter_.isOpen())
        turnedBatches_.clear();
    filter_ = std::move(filter);
    refresh();
    Q_EMIT filterChanged();
}

QString HistoryModel::caption() {
    return tr("The newest %Ln entries, across every folder", nullptr, int(logCap));
}

QString HistoryModel::errorCount() const {
    return errorCount_ == 0 ? QString() : QString::number(errorCount_);
}

int HistoryModel::indexOf(const QString& key) const {
    const auto found = std::ranges::find(rows(), key, &HistoryRow::key);
    return found == rows().end() ? -1 : int(found - rows().begin());
}

int HistoryModel::headOf(int row) const {
    while (row > 0 && row < rowCount() && rows()[std::size_t(row)].isInBatch)
        --row;
    return row;
}

void HistoryModel::setOpen(const QString& key, bool open) {
    const HistoryRow* const head = row(key);
    const auto batchID = batchOf(key);
    if (!head || !batchID || head->isOpen == open)
        return;
    if (!turnedBatches_.remove(*batchID))
        turnedBatches_.insert(*batchID);
    refresh();
}

void HistoryModel::undoBatch(const QString& key) {
    const auto batchID = batchOf(key);
    if (!batchID || undoing_.contains(*batchID))
        return;
    const std::size_t total = undoableOfBatch(around_.store.recentLogs(), *batchID).size();
    const auto mayContinue = std::make_shared<std::atomic<bool>>(true);
    undoing_.insert(*batchID, {.progress = {.total = total}, .mayContinue = mayContinue});
    refresh();
    const QPointer<HistoryModel> self(this);
    around_.store.undoCleanup(
        *batchID,
        [self, id = *batchID](const AppStore::UndoReport& report) {
            if (self)
                self->undoEnded(id, report);
        },
        relayed(around_.background,
                [self, id = *batchID](std::size_t done, std::size_t all) {
                    if (self)
                        self->undoProgressed(id, {.done = done, .total = all});
                }),
        [mayContinue] { return mayContinue->load(); });
}

void HistoryModel::stopUndo(const QString& key) {
    if (const auto batchID = batchOf(key); batchID && undoing_.contains(*batchID))
        undoing_[*batchID].mayContinue->store(false);
}

void HistoryModel::undoProgressed(const QUuid& batchID, UndoProgress progress) {
    const auto found = undoing_.find(batchID);
    if (found == undoing_.end())
        return;
    found->progress = progress;
    refresh();
}

void HistoryModel::undoEnded(const QUuid& batchID, const AppStore::UndoReport& report) {
    undoing_.remove(batchID);
    refresh();
    if (const QString text = undoText(report); !text.isEmpty())
        around_.toasts.show(text);
}

QString HistoryModel::newestUndoable() const {
    const auto found = std::ranges::find_if(
        rows(), [](const HistoryRow& row) { return !row.isBatch && row.canUndo; });
    return found == rows().end() ? QString() : found->entryId;
}

std::optional<QUuid> HistoryModel::batchOf(const QString& key) const {
    const HistoryRow* const head = row(key);
    return head && head->isBatch ? uuidFromText(key.last(36)) : std::nullopt;
}

void HistoryModel::refresh() {
    HistoryLayout layout;
    if (isShown_) {
        QHash<QUuid, UndoProgress> progress;
        for (auto undoing = undoing_.cbegin(); undoing != undoing_.cend(); ++undoing)
            progress.insert(undoing.key(), undoing->progress);
        layout = layOutHistory({.logs = around_.store.recentLogs(),
                                .folders = around_.store.folders(),
                                .filter = filter_,
                                .turnedBatches = turnedBatches_,
                                .undoing = progress,
                                .now = around_.clock.now()});
    }
    // The headings first: a row that comes asks for its day's.
    days_.clear();
    for (const HistoryDay& day : layout.days)
        days_.insert(day.day, QVariantMap{{u"heading"_s, day.heading}, {u"count"_s, day.count}});
    errorCount_ = layout.errorCount;
    Q_EMIT changed();
    setRows(layout.rows);
    Q_EMIT refreshed();
}

} // namespace quillon
