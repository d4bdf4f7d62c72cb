#include "store/AppStore.h"

#include "model/RuleFile.h"
#include "model/Uuid.h"
#include "platform/FileSystem.h"
#include "platform/Storage.h"
#include "store/Attention.h"
#include "store/CleanupRun.h"
#include "store/FolderList.h"
#include "store/KnownFiles.h"
#include "store/RuleEdits.h"
#include "store/Schedules.h"
#include "store/Sentences.h"
#include "store/StoreCore.h"
#include "store/TidyRuns.h"
#include "store/UndoRun.h"
#include "store/WatchCoordinator.h"

#include <QDateTime>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::minutes tickPeriod{1};
constexpr std::uint64_t largestRuleFile = 64ULL << 20;

QDate localDay(Timestamp moment) {
    const auto time = std::chrono::floor<std::chrono::milliseconds>(moment).time_since_epoch();
    return QDateTime::fromMSecsSinceEpoch(time.count()).date();
}

} // namespace

struct AppStore::State {
    State(AppStore& store, std::unique_ptr<StoreSession> opened, const Surroundings& surroundings)
        : core(store, std::move(opened), surroundings) {}

    StoreCore core;
    KnownFiles known{core};
    TidyRuns runs{core, known};
    std::unique_ptr<WatchCoordinator> coordinator; ///< none for a command
    std::unique_ptr<Timer> scheduleTimer;          ///< likewise
    QHash<QUuid, FolderAccess> folderAccess;
    QHash<QUuid, Timestamp> lastScheduledRun;
    std::optional<QUuid> selectedFolderID;
    std::optional<RuleCopy> lastRuleCopy;
    std::optional<PendingRuleEdit> pendingRuleEdit;
    QDate day; ///< as it was a minute ago
    bool needsAttention = false;
    bool isProbing = false;
    bool isProbeDue = false;
};

AppStore::AppStore(std::unique_ptr<StoreSession> session, const Surroundings& surroundings,
                   Life life, QObject* parent)
    : QObject(parent), state_(std::make_unique<State>(*this, std::move(session), surroundings)) {
    connect(this, &AppStore::recentLogsChanged, this, &AppStore::updateAttention);
    connect(this, &AppStore::folderAccessChanged, this, &AppStore::updateAttention);
    connect(this, &AppStore::foldersChanged, this, &AppStore::updateAttention);
    connect(this, &AppStore::runFinished, this, &AppStore::compareAccess);
    if (life == Life::instance)
        startLiving();
    if (!folders().empty())
        state_->selectedFolderID = folders().front().id;
    updateAttention();
}

AppStore::~AppStore() = default;

void AppStore::startLiving() {
    StoreCore& core = state_->core;
    core.saving.note(core.session->rewriteAtLaunch());
    state_->coordinator = std::make_unique<WatchCoordinator>(
        core.around.watching, core.around.timers, core.around.background);
    state_->coordinator->onFolderChanged = [this](const QUuid& folderID) { runRules(folderID); };
    state_->coordinator->onWarningsChanged = [this] { Q_EMIT watchWarningsChanged(); };
    syncWatching();
    for (const WatchedFolder& folder : folders())
        if (folder.schedule != ScheduleInterval::off)
            state_->lastScheduledRun.insert(folder.id, core.now());
    state_->scheduleTimer = core.around.timers.every(tickPeriod, [this] {
        checkSchedules();
        updateAttention();
        const QDate today = localDay(state_->core.now());
        if (std::exchange(state_->day, today) != today)
            Q_EMIT dayChanged();
    });
    state_->day = localDay(core.now());
    refreshAccess();
    askQuestions();
}

void AppStore::syncWatching() {
    if (state_->coordinator)
        state_->coordinator->sync(effective(folders(), isPaused()));
}

void AppStore::updateAttention() {
    const bool needs =
        quillon::needsAttention(folders(), state_->folderAccess, recentLogs(), state_->core.now());
    if (needs == state_->needsAttention)
        return;
    state_->needsAttention = needs;
    Q_EMIT needsAttentionChanged();
}

/// A run has just found the folder, or not.
void AppStore::compareAccess(const RunReport& report) {
    const auto known = state_->folderAccess.constFind(report.folderID);
    if (known != state_->folderAccess.constEnd() &&
        (*known == FolderAccess::ok) == report.unlisted.has_value())
        refreshAccess();
}

const std::vector<WatchedFolder>& AppStore::folders() const {
    return state_->core.state().folders;
}

void AppStore::setFolders(std::vector<WatchedFolder> folders) {
    state_->core.state().folders = std::move(folders);
    foldersEdited();
    syncWatching();
}

void AppStore::foldersEdited() {
    StoreCore& core = state_->core;
    core.memory.keepOnly(core.state().folders);
    std::ignore = core.save();
    Q_EMIT foldersChanged();
}

const std::vector<LogEntry>& AppStore::recentLogs() const {
    return state_->core.state().logs;
}

const QHash<QString, QSet<QString>>& AppStore::processedFiles() const {
    return state_->core.state().processedFiles;
}

const QHash<QUuid, FolderAccess>& AppStore::folderAccess() const {
    return state_->folderAccess;
}

bool AppStore::isPaused() const {
    return state_->core.state().isPaused;
}

std::optional<QUuid> AppStore::selectedFolderID() const {
    return state_->selectedFolderID;
}

void AppStore::setSelectedFolderID(std::optional<QUuid> folderID) {
    if (folderID == state_->selectedFolderID)
        return;
    state_->selectedFolderID = folderID;
    Q_EMIT selectedFolderIDChanged();
}

const std::optional<RuleCopy>& AppStore::lastRuleCopy() const {
    return state_->lastRuleCopy;
}

const std::optional<PendingRuleEdit>& AppStore::pendingRuleEdit() const {
    return state_->pendingRuleEdit;
}

void AppStore::setPendingRuleEdit(std::optional<PendingRuleEdit> edit) {
    state_->pendingRuleEdit = std::move(edit);
    Q_EMIT pendingRuleEditChanged();
}

const std::optional<Error>& AppStore::lastSaveError() const {
    return state_->core.saving.lastError();
}

QStringList AppStore::watchWarnings() const {
    if (!state_->coordinator)
        return {};
    const std::vector<QString> warnings = state_->coordinator->warnings();
    return {warnings.begin(), warnings.end()};
}

bool AppStore::watchWarnsOf(const QUuid& folderID) const {
    return state_->coordinator && state_->coordinator->warnsOf(folderID);
}

const QStringList& AppStore::openingWarnings() const {
    return state_->core.session->warnings();
}

const QHash<QUuid, Timestamp>& AppStore::lastScheduledRun() const {
    return state_->lastScheduledRun;
}

const WatchedFolder* AppStore::folder(const QUuid& folderID) const {
    return state_->core.folder(folderID);
}

const WatchedFolder* AppStore::folderAt(const QString& path) const {
    return findFolderAt(folders(), path);
}

bool AppStore::wantsOnlyNewFiles(const QUuid& folderID) const {
    const WatchedFolder* const known = folder(folderID);
    return known && (known->onlyNewFiles || state_->known.isFinding(folderID));
}

const WatchedFolder* AppStore::selectedFolder() const {
    return state_->selectedFolderID ? folder(*state_->selectedFolderID) : nullptr;
}

bool AppStore::needsAttention() const {
    return state_->needsAttention;
}

std::size_t AppStore::recentErrorCount(const QUuid& folderID) const {
    return quillon::recentErrorCount(recentLogs(), folderID, state_->core.now());
}

template <typename Edit>
bool AppStore::update(const QUuid& folderID, const Edit& edit) {
    WatchedFolder* const folder = state_->core.folder(folderID);
    if (!folder)
        return false;
    edit(*folder);
    foldersEdited();
    return true;
}

std::optional<QUuid> AppStore::addFolder(const QString& path) {
    if (folderAt(path))
        return std::nullopt;
    const QUuid folderID = state_->core.state().folders.emplace_back(newFolder(path)).id;
    foldersEdited();
    setSelectedFolderID(folderID);
    arrived(folderID);
    return folderID;
}

void AppStore::removeFolder(const QUuid& folderID) {
    std::vector<WatchedFolder>& all = state_->core.state().folders;
    if (std::erase_if(all, [&](const WatchedFolder& folder) { return folder.id == folderID; }) == 0)
        return;
    state_->runs.retries().cancel(folderID);
    foldersEdited();
    if (state_->selectedFolderID == folderID)
        setSelectedFolderID(all.empty() ? std::nullopt : std::optional(all.front().id));
    syncWatching();
}

bool AppStore::relocateFolder(const QString& path, const QUuid& folderID) {
    const WatchedFolder* const known = folder(folderID);
    const WatchedFolder* const there = folderAt(path);
    if (!known || (there && there != known))
        return false;
    WatchedFolder moved = *known;
    moved.path = newFolder(path).path;
    // Where it was counts for nothing here: what lies in it is known under other paths.
    if (wantsOnlyNewFiles(folderID)) {
        countFrom(moved);
        return true;
    }
    update(folderID, [&](WatchedFolder& found) { found.path = moved.path; });
    arrived(folderID);
    return true;
}

void AppStore::setColor(std::optional<int> index, const QUuid& folderID) {
    update(folderID, [&](WatchedFolder& folder) { folder.colorIndex = index; });
}

void AppStore::setSymbol(const QString& symbolName, const QUuid& folderID) {
    update(folderID, [&](WatchedFolder& folder) { folder.symbolName = symbolName; });
}

void AppStore::setRecursive(bool isRecursive, const QUuid& folderID) {
    update(folderID, [&](WatchedFolder& folder) { folder.isRecursive = isRecursive; });
}

void AppStore::setSkipOnlineOnly(bool skip, const QUuid& folderID) {
    update(folderID, [&](WatchedFolder& folder) { folder.skipOnlineOnly = skip; });
}

void AppStore::setOnlyNewFiles(bool onlyNew, const QUuid& folderID) {
    const WatchedFolder* const known = folder(folderID);
    if (!known)
        return;
    if (onlyNew)
        return countFrom(*known);
    state_->known.giveUp(folderID);
    update(folderID, [](WatchedFolder& found) { found.onlyNewFiles = false; });
}

/// Has only new files count in the folder as it is given, which is saved together with what is in
/// it: an end in between must not let the old ones count as new.
void AppStore::countFrom(const WatchedFolder& folder) {
    const auto known = [this, id = folder.id, path = folder.path](KnownFiles::Keys keys) {
        const WatchedFolder* const now = this->folder(id);
        const WatchedFolder* const there = folderAt(path);
        if (!now || (there && there != now))
            return;
        const bool hasMoved = now->path != path;
        update(id, [&](WatchedFolder& found) {
            found.path = path;
            found.onlyNewFiles = true;
            // Of a folder that is away, what earlier runs have seen there still counts.
            if (keys)
                state_->core.state().processedFiles.insert(uuidText(id), *std::move(keys));
        });
        if (hasMoved)
            arrived(id);
    };
    state_->known.find(folder, known);
    state_->runs.awaitKnown(folder.id);
    Q_EMIT foldersChanged();
}

/// The folder is where it was not before.
void AppStore::arrived(const QUuid& folderID) {
    syncWatching();
    refreshAccess();
    runRules(folderID);
}

void AppStore::setTiming(TidyTiming timing, const QUuid& folderID) {
    if (!update(folderID, [&](WatchedFolder& folder) { folder.setTiming(timing); }))
        return;
    state_->lastScheduledRun.insert(folderID, state_->core.now());
    syncWatching();
    if (timing == TidyTiming::live)
        runRules(folderID);
}

void AppStore::setPaused(bool paused) {
    if (paused == isPaused())
        return;
    state_->core.state().isPaused = paused;
    std::ignore = state_->core.save();
    Q_EMIT isPausedChanged();
    syncWatching();
    if (paused)
        state_->runs.retries().cancelAll();
    else
        runAllRules();
}

void AppStore::addRules(std::vector<Rule> rules, const QUuid& folderID, RuleSource) {
    const bool isKnown = update(folderID, [&](WatchedFolder& folder) {
        for (Rule& rule : rules)
            folder.rules.push_back(findRule(folder.rules, rule.id) ? freshCopy(std::move(rule))
                                                                   : std::move(rule));
    });
    if (isKnown)
        runRules(folderID);
}

void AppStore::saveRule(const Rule& rule, const QUuid& folderID) {
    update(folderID, [&](WatchedFolder& folder) { putRule(folder.rules, rule); });
}

template <typename Edit>
void AppStore::updateRule(const QUuid& ruleID, const QUuid& folderID, const Edit& edit) {
    const WatchedFolder* const known = folder(folderID);
    if (known && findRule(known->rules, ruleID))
        update(folderID, [&](WatchedFolder& found) { edit(found.rules); });
}

void AppStore::deleteRule(const QUuid& ruleID, const QUuid& folderID) {
    updateRule(ruleID, folderID, [&](auto& rules) { quillon::deleteRule(rules, ruleID); });
}

void AppStore::setRuleEnabled(bool enabled, const QUuid& ruleID, const QUuid& folderID) {
    updateRule(ruleID, folderID,
               [&](auto& rules) { quillon::setRuleEnabled(rules, ruleID, enabled); });
}

void AppStore::duplicateRule(const QUuid& ruleID, const QUuid& folderID) {
    updateRule(ruleID, folderID, [&](auto& rules) { quillon::duplicateRule(rules, ruleID); });
}

void AppStore::copyRule(const QUuid& ruleID, const QUuid& targetFolderID) {
    const Rule* rule = nullptr;
    for (const WatchedFolder& source : folders())
        if (!rule)
            rule = findRule(source.rules, ruleID);
    const WatchedFolder* const target = folder(targetFolderID);
    if (!rule || !target)
        return;
    state_->lastRuleCopy =
        RuleCopy{.ruleName = rule->name, .folderName = target->name(), .folderID = targetFolderID};
    update(targetFolderID, [copy = copyFor(target->rules, *rule)](WatchedFolder& found) {
        found.rules.push_back(copy);
    });
    Q_EMIT lastRuleCopyChanged();
    runRules(targetFolderID);
}

void AppStore::reorderRules(const QUuid& folderID, const std::vector<QUuid>& order) {
    update(folderID, [&](WatchedFolder& folder) { quillon::reorderRules(folder.rules, order); });
}

void AppStore::moveRuleBy(int offset, const QUuid& ruleID, const QUuid& folderID) {
    updateRule(ruleID, folderID, [&](auto& rules) { quillon::moveRuleBy(rules, ruleID, offset); });
}

void AppStore::moveRuleBefore(const QUuid& otherRuleID, const QUuid& ruleID,
                              const QUuid& folderID) {
    updateRule(ruleID, folderID,
               [&](auto& rules) { quillon::moveRuleBefore(rules, ruleID, otherRuleID); });
}

Expected<void> AppStore::exportRules(const QUuid& folderID, const std::string& path) const {
    const WatchedFolder* const known = folder(folderID);
    if (!known)
        return {};
    if (auto written = state_->core.around.storage.writeDurably(path, encodeRules(known->rules));
        !written)
        return failedTo(u"%1 can't be written"_s.arg(pathText(path)), written.error());
    return {};
}

Expected<std::size_t> AppStore::importRules(const std::string& path, const QUuid& folderID) {
    const QString what = u"%1 can't be read"_s.arg(pathText(path));
    const auto bytes = state_->core.around.storage.readWhole(path, largestRuleFile);
    if (!bytes)
        return failedTo(what, bytes.error());
    auto rules = decodeRules(*bytes);
    if (!rules)
        return failedTo(what, rules.error());
    if (!folder(folderID))
        return 0;
    for (Rule& rule : *rules)
        rule = freshCopy(std::move(rule));
    const std::size_t count = rules->size();
    addRules(std::move(*rules), folderID, RuleSource::manual);
    return count;
}

std::uint64_t AppStore::runRules(const QUuid& folderID, RunCause cause) {
    const std::uint64_t number = state_->runs.request(folderID, cause);
    if (number != 0 && cause == RunCause::asked)
        Q_EMIT runAsked(folderID, number);
    return number;
}

void AppStore::runAllRules(RunCause cause) {
    for (const WatchedFolder& folder : folders())
        runRules(folder.id, cause);
}

void AppStore::checkSchedules() {
    if (isPaused())
        return;
    const Timestamp now = state_->core.now();
    for (const QUuid& folderID : dueFolders(folders(), state_->lastScheduledRun, now)) {
        state_->lastScheduledRun.insert(folderID, now);
        runRules(folderID);
    }
}

std::uint64_t AppStore::lastRunNumber() const {
    return state_->runs.lastNumber();
}

void AppStore::afterRuns(std::uint64_t number, std::function<void()> done) {
    state_->runs.afterRuns(number, std::move(done));
}

void AppStore::endRunsEarly(std::uint64_t first, std::uint64_t last) {
    state_->runs.endEarly(first, last);
}

bool AppStore::isSettling(const QUuid& folderID) const {
    return state_->runs.retries().isPending(folderID);
}

bool AppStore::isUnsettled(const QUuid& folderID) const {
    return state_->runs.isUnsettled(folderID);
}

void AppStore::askQuestions() {
    state_->runs.askQuestions();
}

void AppStore::runCleanup(Cleanup cleanup, const std::function<void(CleanupReport)>& done) {
    startCleanup(state_->core, std::move(cleanup), done);
}

void AppStore::undo(std::vector<QUuid> entryIDs, std::function<void(UndoReport)> done,
                    Progress progress, std::function<bool()> mayContinue) {
    startUndo(state_->core, std::move(entryIDs), std::move(done), std::move(progress),
              std::move(mayContinue));
}

void AppStore::undoCleanup(const QUuid& batchID, std::function<void(UndoReport)> done,
                           Progress progress, std::function<bool()> mayContinue) {
    std::vector<QUuid> entryIDs;
    for (const LogEntry& entry : undoableOfBatch(recentLogs(), batchID))
        entryIDs.push_back(entry.id);
    undo(std::move(entryIDs), std::move(done), std::move(progress), std::move(mayContinue));
}

std::vector<PreviewItem> AppStore::preview(const QUuid& folderID) const {
    const WatchedFolder* const known = folder(folderID);
    if (!known)
        return {};
    const RuleEngine engine = state_->core.around.makeEngine({});
    const Expected<ReadyFiles> ready = engine.readyFiles(*known);
    return ready ? engine.preview(known->rules, *ready) : std::vector<PreviewItem>();
}

void AppStore::refreshAccess() {
    if (state_->isProbing) {
        state_->isProbeDue = true;
        return;
    }
    state_->isProbing = true;
    const auto found = std::make_shared<QHash<QUuid, FolderAccess>>();
    std::vector<std::pair<QUuid, std::string>> paths;
    for (const WatchedFolder& folder : folders())
        paths.emplace_back(folder.id, folder.path.toStdString());
    state_->core.inBackground(
        [found, paths = std::move(paths), &fileSystem = state_->core.around.platform.fileSystem] {
            for (const auto& [id, path] : paths)
                found->insert(id, probeAccess(fileSystem, path));
        },
        [this, found] {
            state_->isProbing = false;
            if (*found != state_->folderAccess) {
                state_->folderAccess = std::move(*found);
                Q_EMIT folderAccessChanged();
            }
            if (std::exchange(state_->isProbeDue, false))
                refreshAccess();
        });
}

void AppStore::finish(std::function<void()> done) {
    state_->scheduleTimer.reset();
    state_->runs.retries().cancelAll();
    if (state_->coordinator)
        state_->coordinator->sync({});
    state_->core.lanes.close([this, done = std::move(done)] {
        std::ignore = state_->core.save();
        state_->core.saving.stopRetrying();
        done();
    });
}

void AppStore::hurry() {
    state_->core.hurry();
}

} // namespace quillon
