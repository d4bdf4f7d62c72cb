#include "ui/history/PopoverModel.h"

#include "model/Uuid.h"
#include "store/Schedules.h"
#include "ui/CountTexts.h"
#include "ui/FolderLook.h"
#include "ui/RunTexts.h"
#include "ui/TimeTexts.h"

#include <algorithm>
#include <ranges>

namespace quillon {

using namespace std::chrono_literals;

namespace {

constexpr std::size_t entriesShown = 3;
/// Nothing is said of work that is over sooner.
constexpr auto untilToldOf = 300ms;
constexpr auto outcomeStays = 6s;

ActivityEntry entryRow(const LogEntry& entry, Timestamp now) {
    ActivityEntry row = activityEntry(entry, now);
    row.secondLine = entry.actionSummary; // there is no room for the rule
    return row;
}

} // namespace

PopoverModel::PopoverModel(AppStore& store, const Clock& clock, Timers& timers, QObject* parent)
    : QObject(parent), store_(store), clock_(clock), timers_(timers) {
    for (const auto signal :
         {&AppStore::foldersChanged, &AppStore::recentLogsChanged, &AppStore::folderAccessChanged,
          &AppStore::isPausedChanged, &AppStore::needsAttentionChanged})
        connect(&store, signal, this, &PopoverModel::refresh);
    connect(&store, &AppStore::runFinished, this, &PopoverModel::endRun);
}

PopoverModel::~PopoverModel() = default;

void PopoverModel::setShown(bool shown) {
    if (isShown_ == shown)
        return;
    isShown_ = shown;
    minutes_ = shown ? timers_.every(1min, [this] { refresh(); }) : nullptr;
    outcomes_.clear();
    refresh();
    Q_EMIT changed();
}

void PopoverModel::run(const QString& folderID) {
    const auto id = uuidFromText(folderID);
    const std::uint64_t number = id ? store_.runRules(*id, RunCause::asked) : 0;
    if (number == 0)
        return;
    outcomes_.erase(*id);
    Run& run = runs_[*id];
    run.number = number;
    if (!run.isTold)
        run.delay = timers_.after(untilToldOf, [this, id = *id] {
            runs_[id].isTold = true;
            refresh();
        });
    refresh();
}

void PopoverModel::runAll() {
    for (const PopoverFolder& folder : std::vector(folders_.rows()))
        if (folder.canRun)
            run(folder.key);
}

void PopoverModel::togglePaused() {
    store_.setPaused(!store_.isPaused());
}

void PopoverModel::openMainWindow() {
    Q_EMIT closeRequested();
    Q_EMIT openMainWindowRequested();
}

void PopoverModel::openFolder(const QString& folderID) {
    store_.setSelectedFolderID(uuidFromText(folderID));
    openMainWindow();
}

void PopoverModel::openSettings() {
    Q_EMIT closeRequested();
    Q_EMIT settingsRequested();
}

void PopoverModel::endRun(const RunReport& report) {
    const auto run = runs_.find(report.folderID);
    if (run == runs_.end() || report.number < run->second.number)
        return;
    runs_.erase(run);
    if (const QString text = runTexts(report).brief; !text.isEmpty())
        outcomes_[report.folderID] = {
            .text = text, .end = timers_.after(outcomeStays, [this, id = report.folderID] {
                outcomes_.erase(id);
                refresh();
            })};
    refresh();
}

void PopoverModel::refresh() {
    if (!isShown_)
        return;
    std::vector<PopoverFolder> folders;
    for (const WatchedFolder& folder : store_.folders())
        folders.push_back(rowOf(folder, folders.size()));
    const auto troubled = std::size_t(std::ranges::count(folders, true, &PopoverFolder::isTrouble));
    isTrouble_ = troubled > 0 || store_.needsAttention();
    if (troubled > 0)
        statusText_ = troubled == 1 ? tr("1 folder needs a look")
                                    : tr("%n folders need a look", nullptr, int(troubled));
    else if (isTrouble_)
        statusText_ =
            tr("Something went wrong lately", "with a folder that is not watched any more");
    else if (folders.empty())
        statusText_ = tr("Nothing to tidy yet");
    else
        statusText_ = store_.isPaused() ? tr("Paused — nothing runs automatically")
                                        : tr("Everything is in order");
    if (isTrouble_ && store_.isPaused())
        statusText_ = tr("Paused · %1", "what else there is to say").arg(statusText_);
    folders_.setRows(folders);

    std::vector<ActivityEntry> entries;
    for (const LogEntry& entry : store_.recentLogs() | std::views::take(entriesShown))
        entries.push_back(entryRow(entry, clock_.now()));
    entries_.setRows(entries);
    Q_EMIT changed();
}

PopoverFolder PopoverModel::rowOf(const WatchedFolder& folder, std::size_t position) const {
    const FolderLook look = lookOf(folder, position);
    PopoverFolder row{.key = uuidText(folder.id),
                      .name = folder.name(),
                      .tint = look.tint,
                      .symbol = look.symbol};
    const FolderAccess access = store_.folderAccess().value(folder.id, FolderAccess::ok);
    const std::size_t errors = store_.recentErrorCount(folder.id);
    row.isTrouble = access != FolderAccess::ok || errors > 0;
    row.canRun = access == FolderAccess::ok;
    const auto run = runs_.find(folder.id);
    row.isRunning = run != runs_.end() && run->second.isTold;
    const auto outcome = outcomes_.find(folder.id);
    if (row.isRunning)
        row.statusText = tr("Tidying…");
    else if (access == FolderAccess::missing)
        row.statusText = tr("Folder not found");
    else if (access == FolderAccess::denied)
        row.statusText = tr("Access blocked");
    else if (outcome != outcomes_.end())
        row.statusText = outcome->second.text;
    else
        row.statusText = errors > 0 ? errorCount(errors) : whenTidied(folder);
    return row;
}

QString PopoverModel::whenTidied(const WatchedFolder& folder) const {
    const auto interval = tidyInterval(folder);
    if (!interval || folder.timing() == TidyTiming::live || store_.isPaused())
        return label(folder.timing());
    const Timestamp now = clock_.now();
    const Timestamp last = store_.lastScheduledRun().value(folder.id, Timestamp());
    if (last > now || now - last >= *interval)
        return tr("Next in a moment");
    return tr("Next %1", "when, as “at 10:00”").arg(comingTimeText(last + *interval, now));
}

} // namespace quillon
