#include "ui/folders/FolderPage.h"

#include "model/Uuid.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "store/Attention.h"
#include "ui/CountTexts.h"
#include "ui/FolderLook.h"
#include "ui/RunTexts.h"
#include "ui/TimeTexts.h"
#include "ui/editor/FolderChoices.h"
#include "ui/folders/FolderStyles.h"

#include <QPointer>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::size_t entriesShown = 8;
/// Nothing is said of work that is over sooner.
constexpr auto untilToldOf = 300ms;

} // namespace

FolderPage::FolderPage(const Surroundings& around, QObject* parent)
    : QObject(parent), around_(around), rules_(around.store, around.toasts) {
    AppStore& store = around_.store;
    for (const auto signal : {&AppStore::foldersChanged, &AppStore::recentLogsChanged,
                              &AppStore::folderAccessChanged, &AppStore::selectedFolderIDChanged,
                              &AppStore::isPausedChanged, &AppStore::lastSaveErrorChanged,
                              &AppStore::watchWarningsChanged, &AppStore::needsAttentionChanged})
        connect(&store, signal, this, &FolderPage::refresh);
    connect(&store, &AppStore::runAsked, this, &FolderPage::beginRun);
    connect(&store, &AppStore::runFinished, this, &FolderPage::endRun);
    minutes_ = around_.timers.every(1min, [this] {
        refresh();
        // What changes in a live folder sets off a run, and a run a count.
        if (folder() && (folder()->timing() != TidyTiming::live || around_.store.isPaused()))
            countFiles();
    });
    refresh();
}

FolderPage::~FolderPage() = default;

QString FolderPage::folderID() const {
    return folder() ? uuidText(folder()->id) : QString();
}

QString FolderPage::name() const {
    return folder() ? folder()->name() : QString();
}

int FolderPage::tint() const {
    return folder() ? lookOf(*folder(), around_.store.folders()).tint : 0;
}

QString FolderPage::symbol() const {
    return folder() ? lookOf(*folder(), 0).symbol : QString();
}

FolderAccess FolderPage::access() const {
    return folder() ? around_.store.folderAccess().value(folder()->id, FolderAccess::ok)
                    : FolderAccess::ok;
}

bool FolderPage::canRun() const {
    return folder() && access() == FolderAccess::ok;
}

QString FolderPage::whyNotRun() const {
    return folder() ? whyNotRun(*folder(), around_.store) : QString();
}

QString FolderPage::whyNotRun(const WatchedFolder& folder, const AppStore& store) {
    switch (store.folderAccess().value(folder.id, FolderAccess::ok)) {
    case FolderAccess::missing:
        return tr("%1 can’t be found").arg(folder.name());
    case FolderAccess::denied:
        return tr("Quillon isn’t allowed to read %1").arg(folder.name());
    case FolderAccess::ok:
        break;
    }
    return {};
}

bool FolderPage::isRunning() const {
    const auto run = folder() ? runs_.find(folder()->id) : runs_.end();
    return run != runs_.end() && run->second.isTold;
}

bool FolderPage::hasRules() const {
    return folder() && !folder()->rules.empty();
}

QStringList FolderPage::timings() {
    QStringList labels;
    for (std::size_t i = 0; i < rawValues<TidyTiming>.size(); ++i)
        labels.append(label(static_cast<TidyTiming>(i)));
    return labels;
}

int FolderPage::timing() const {
    return folder() ? int(folder()->timing()) : 0;
}

void FolderPage::setTiming(int index) {
    if (folder() && index >= 0 && index < int(rawValues<TidyTiming>.size()) && index != timing())
        around_.store.setTiming(static_cast<TidyTiming>(index), folder()->id);
}

void FolderPage::setRecursive(bool isRecursive) {
    if (folder() && isRecursive != folder()->isRecursive)
        around_.store.setRecursive(isRecursive, folder()->id);
}

void FolderPage::setOnlyNewFiles(bool onlyNew) {
    if (folder() && onlyNew != onlyNewFiles())
        around_.store.setOnlyNewFiles(onlyNew, folder()->id);
}

void FolderPage::setSkipsOnlineOnly(bool skip) {
    if (folder() && skip != folder()->skipOnlineOnly)
        around_.store.setSkipOnlineOnly(skip, folder()->id);
}

QStringList FolderPage::tintNames() const {
    return quillon::tintNames();
}

QVariantList FolderPage::symbols() const {
    return folderSymbols();
}

void FolderPage::setTint(int index) {
    if (folder())
        around_.store.setColor(index, folder()->id);
}

void FolderPage::setSymbol(const QString& name) {
    if (folder())
        around_.store.setSymbol(name, folder()->id);
}

void FolderPage::run() {
    runFolder(folderID());
}

void FolderPage::runFolder(const QString& folderID) {
    const auto id = uuidFromText(folderID);
    if (id && around_.store.folder(*id) &&
        around_.store.folderAccess().value(*id, FolderAccess::ok) == FolderAccess::ok)
        around_.store.runRules(*id, RunCause::asked);
}

void FolderPage::runAll() {
    for (const WatchedFolder& each : around_.store.folders())
        runFolder(uuidText(each.id));
}

void FolderPage::beginRun(const QUuid& folderID, std::uint64_t number) {
    Run& run = runs_[folderID];
    run.number = number;
    if (!run.isTold)
        run.delay = around_.timers.after(untilToldOf, [this, folderID] {
            runs_[folderID].isTold = true;
            refresh();
        });
}

void FolderPage::endRun(const RunReport& report) {
    const auto run = runs_.find(report.folderID);
    if (run != runs_.end() && report.number >= run->second.number) {
        runs_.erase(run);
        const QString text = runTexts(report).sentence;
        if (std::ranges::any_of(report.run.entries, &LogEntry::isError))
            around_.toasts.show(text, tr("Show Errors"),
                                [self = QPointer(this), id = uuidText(report.folderID)] {
                                    if (self)
                                        Q_EMIT self->errorsAsked(id);
                                });
        else
            around_.toasts.show(text);
        refresh();
    }
    if (folder() && report.folderID == folder()->id)
        countFiles();
}

void FolderPage::importRules() {
    if (!folder())
        return;
    around_.fileChooser.chooseFile(
        tr("Choose a file of rules"), {},
        [self = QPointer(this), id = folder()->id](const auto& chosen) {
            if (!self || !chosen || !self->around_.store.folder(id))
                return;
            AppStore& store = self->around_.store;
            const std::vector<Rule> before = store.folder(id)->rules;
            const auto added = store.importRules(*chosen, id);
            if (!added)
                return self->around_.toasts.show(
                    added.error().kind == ErrorKind::invalid
                        ? tr("That file isn’t a list of Quillon rules.")
                        : added.error().message);
            std::vector<QUuid> fresh;
            for (const Rule& rule : store.folder(id)->rules)
                if (std::ranges::find(before, rule.id, &Rule::id) == before.end())
                    fresh.push_back(rule.id);
            self->around_.toasts.show(
                tr("%1 added from a file", "a number of rules").arg(ruleCount(*added)),
                fresh.empty() ? QString() : tr("Undo"), [&store, id, fresh] {
                    for (const QUuid& rule : fresh)
                        store.deleteRule(rule, id);
                });
        });
}

void FolderPage::exportRules() {
    if (!folder())
        return;
    around_.fileChooser.chooseNewFile(
        tr("Export the rules of %1").arg(name()), tr("%1 rules.json", "a file name").arg(name()),
        [self = QPointer(this), id = folder()->id](const auto& chosen) {
            if (!self || !chosen || !self->around_.store.folder(id))
                return;
            const AppStore& store = self->around_.store;
            const auto written = store.exportRules(id, *chosen);
            self->around_.toasts.show(written ? tr("%1 exported", "a number of rules")
                                                    .arg(ruleCount(store.folder(id)->rules.size()))
                                              : written.error().message);
        });
}

QString FolderPage::newestUndoable() const {
    const auto& logs = around_.store.recentLogs();
    const auto found = std::ranges::find_if(logs, [this](const LogEntry& entry) {
        return folder() && entry.folderID == folder()->id && canBeUndone(entry);
    });
    return found == logs.end() ? QString() : uuidText(found->id);
}

void FolderPage::refresh() {
    const WatchedFolder* const shown = folder();
    rules_.show(shown ? shown->id : QUuid());

    std::vector<ActivityEntry> entries;
    const Timestamp now = around_.platform.clock.now();
    for (const LogEntry& entry : around_.store.recentLogs()) {
        if (entries.size() == entriesShown)
            break;
        if (shown && entry.folderID == shown->id)
            entries.push_back(activityEntry(entry, now));
    }
    activity_.setRows(entries);

    QVariantList others;
    for (const WatchedFolder& each : around_.store.folders())
        if (shown && each.id != shown->id)
            others.append(QVariantMap{{u"key"_s, uuidText(each.id)}, {u"name"_s, each.name()}});
    if (others != otherFolders_) {
        otherFolders_ = others;
        Q_EMIT otherFoldersChanged();
    }

    const QString place =
        shown ? shown->path + (shown->isRecursive ? u"/**"_s : QString()) : QString();
    if (place != countedFor_) {
        countedFor_ = place;
        fileCount_.reset();
        countFiles();
    }
    refreshDetails();
    refreshBanner();
    Q_EMIT changed();
}

void FolderPage::refreshDetails() {
    const WatchedFolder* const shown = folder();
    if (!shown) {
        details_.clear();
        return;
    }
    QStringList facts{FolderChoices({}, around_.platform.folders.home).place(shown->path)};
    if (fileCount_)
        facts.append(fileCount(*fileCount_));
    const auto& logs = around_.store.recentLogs();
    const auto newest =
        std::ranges::find(logs, std::optional<QUuid>(shown->id), &LogEntry::folderID);
    if (isRunning())
        facts.append(tr("Tidying…"));
    else if (newest != logs.end())
        facts.append(tr("tidied %1", "when, as “4 minutes ago”")
                         .arg(timeAgoText(newest->date, around_.platform.clock.now())));
    details_ = facts.join(u" · "_s);
}

void FolderPage::countFiles() {
    const WatchedFolder* const shown = folder();
    isCountDue_ = shown && isCounting_;
    if (!shown || isCounting_)
        return;
    isCounting_ = true;
    const auto count = std::make_shared<std::optional<std::size_t>>();
    around_.background.start(
        [count, path = shown->path.toStdString(), isRecursive = shown->isRecursive,
         &fileSystem = around_.platform.fileSystem] {
            const auto listing = fileSystem.list(path, {.recursive = isRecursive});
            if (listing)
                *count =
                    std::size_t(std::ranges::count_if(listing->files, [](const ListedFile& file) {
                        return file.status.type != FileType::directory;
                    }));
        },
        [self = QPointer(this), count, place = countedFor_] {
            if (!self)
                return;
            self->isCounting_ = false;
            if (place == self->countedFor_ && *count != self->fileCount_) {
                self->fileCount_ = *count;
                self->refreshDetails();
                Q_EMIT self->changed();
            }
            if (self->isCountDue_ || place != self->countedFor_)
                self->countFiles();
        });
}

FolderPage::Trouble FolderPage::findTrouble() const {
    const AppStore& store = around_.store;
    if (store.lastSaveError())
        return Trouble::save;
    if (access() == FolderAccess::denied)
        return Trouble::denied;
    if (access() == FolderAccess::missing)
        return Trouble::missing;
    if (store.isPaused())
        return Trouble::paused;
    if (folder() && store.recentErrorCount(folder()->id) > 0)
        return Trouble::errors;
    if (!store.openingWarnings().isEmpty() && !isOpeningTold_)
        return Trouble::opening;
    return folder() && store.watchWarnsOf(folder()->id) ? Trouble::watch : Trouble::none;
}

void FolderPage::refreshBanner() {
    const AppStore& store = around_.store;
    trouble_ = findTrouble();
    const auto warn = [](const QString& text, const QStringList& actions) {
        return FolderBanner{
            .kind = u"warn"_s, .text = text, .glyph = u"alert"_s, .actions = actions};
    };
    switch (trouble_) {
    case Trouble::none:
        banner_ = {};
        break;
    case Trouble::save:
        banner_ =
            warn(tr("Quillon can’t save your changes: %1").arg(store.lastSaveError()->message), {});
        banner_.kind = u"error"_s;
        break;
    case Trouble::denied:
        banner_ = warn(whyNotRun(), {tr("Try Again")});
        banner_.glyph.clear();
        banner_.iconName = u"lock"_s;
        break;
    case Trouble::missing:
        banner_ = warn(whyNotRun(), {tr("Locate…"), tr("Remove")});
        break;
    case Trouble::paused:
        banner_ = warn(tr("Paused — nothing runs automatically"), {tr("Resume")});
        banner_.glyph.clear();
        banner_.iconName = u"media-playback-pause"_s;
        break;
    case Trouble::errors:
        banner_ = warn(tr("%1 couldn’t be filed today", "a number of files")
                           .arg(fileCount(recentFailureCount(store.recentLogs(), folder()->id,
                                                             around_.platform.clock.now()))),
                       {tr("Show Errors")});
        banner_.kind = u"error"_s;
        break;
    case Trouble::watch:
        banner_ = warn(
            tr("%1 can't be watched live, so Quillon checks it every few minutes.").arg(name()),
            {});
        break;
    case Trouble::opening:
        banner_ = warn(store.openingWarnings().join(u' '), {tr("Dismiss")});
        break;
    }
}

void FolderPage::actOnBanner(int action) {
    switch (trouble_) {
    case Trouble::denied:
        around_.store.refreshAccess();
        break;
    case Trouble::missing:
        if (action == 0)
            Q_EMIT locateAsked(folderID());
        else
            Q_EMIT removeAsked(folderID());
        break;
    case Trouble::paused:
        around_.store.setPaused(false);
        break;
    case Trouble::errors:
        Q_EMIT errorsAsked(folderID());
        break;
    case Trouble::opening:
        isOpeningTold_ = true;
        refresh();
        break;
    case Trouble::none:
    case Trouble::save:
    case Trouble::watch:
        break;
    }
}

} // namespace quillon
