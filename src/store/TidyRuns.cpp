#include "store/TidyRuns.h"

#include "model/Uuid.h"
#include "store/Attention.h"
#include "store/SettingsTable.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

// Past that many a folder's keys are cut down to those of files that are there.
constexpr qsizetype pruneThreshold = 8000;

bool isSameFailure(const LogEntry& one, const LogEntry& other) {
    return one.isError && other.isError && !one.undoable && !other.undoable &&
           one.folderID == other.folderID && one.ruleName == other.ruleName &&
           one.originalPath == other.originalPath && one.currentPath == other.currentPath &&
           one.actionSummary == other.actionSummary;
}

} // namespace

struct TidyRuns::Run {
    WatchedFolder folder;
    QSet<QString> skip;
    bool beganPaused;
    std::unique_ptr<FolderRestraint> restraint;
    std::shared_ptr<StoreSession> session;
    std::unique_ptr<JournalledRun> journal;
    RuleEngine engine;
    RunReport report;

    /// In the background.
    void perform() {
        const Expected<ReadyFiles> ready = engine.readyFiles(folder);
        if (!ready) {
            report.unlisted = ready.error();
            return;
        }
        report.tested = ready->files.size();
        report.deferred = ready->deferred;
        report.stalled = ready->stalled;
        report.skippedNames = ready->skippedNames;
        report.run = engine.execute(*ready, folder.rules, folder, skip, std::nullopt, *journal);
    }
    /// Every file that was ready has been looked at.
    [[nodiscard]] bool isWhole() const {
        return !report.unlisted && !report.run.interrupted && !report.run.stopped;
    }
};

TidyRuns::TidyRuns(StoreCore& core, KnownFiles& known)
    : core_(core), known_(known), retries_(core.around.timers, [this](const QUuid& folderID) {
        request(folderID, RunCause::automatic);
    }) {}

std::uint64_t TidyRuns::takeNumber() {
    unfinished_.emplace(++lastNumber_, std::make_shared<std::atomic<bool>>(false));
    return lastNumber_;
}

void TidyRuns::awaitKnown(const QUuid& folderID) {
    known_.whenKnown(folderID, [this, number = takeNumber()] { finished(number); });
}

std::uint64_t TidyRuns::request(const QUuid& folderID, RunCause cause) {
    const WatchedFolder* const folder = core_.folder(folderID);
    if (!folder || core_.isAtRest())
        return 0;
    if (const auto waiting = waiting_.find(folderID); waiting != waiting_.end()) {
        if (cause == RunCause::asked)
            waiting->second.cause = cause;
        return waiting->second.number;
    }
    const std::uint64_t number = takeNumber();
    waiting_.emplace(folderID, Request{number, cause});
    core_.lanes.add(folder->path, {.start =
                                       [this, folderID](const auto& ended) {
                                           known_.whenKnown(folderID, [this, folderID, ended] {
                                               start(folderID, ended);
                                           });
                                       },
                                   .drop =
                                       [this, folderID, number] {
                                           waiting_.erase(folderID);
                                           finished(number);
                                       }});
    return number;
}

void TidyRuns::start(const QUuid& folderID, const std::function<void()>& ended) {
    const Request request = waiting_.extract(folderID).mapped();
    const WatchedFolder* const folder = core_.folder(folderID);
    if (!folder || core_.isAtRest()) {
        finished(request.number);
        return ended();
    }
    EngineSettings settings{.mayContinue =
                                core_.unlessHurried([endsEarly = unfinished_.at(request.number)] {
                                    return !*endsEarly;
                                })};
    std::unique_ptr<FolderRestraint> restraint;
    if (request.cause == RunCause::automatic)
        restraint = core_.memory.restraint(*folder, core_.now());
    settings.restraint = restraint.get();
    const auto run = std::make_shared<Run>(
        Run{.folder = *folder,
            .skip = folder->onlyNewFiles ? core_.state().processedFiles.value(uuidText(folderID))
                                         : QSet<QString>(),
            .beganPaused = core_.state().isPaused,
            .restraint = std::move(restraint),
            .session = core_.session,
            .journal = core_.session->journal().beginRun(),
            .engine = core_.around.makeEngine(std::move(settings)),
            .report = {.number = request.number,
                       .folderID = folderID,
                       .folderName = folder->name(),
                       .cause = request.cause}});
    running_.insert(folderID);
    core_.inBackground([run] { run->perform(); },
                       [this, run, ended] {
                           takeIn(*run);
                           finished(run->report.number);
                           ended();
                       });
}

void TidyRuns::takeIn(Run& run) {
    RunReport& report = run.report;
    running_.erase(report.folderID);
    std::vector<LogEntry>& entries = report.run.entries;
    const bool isKnown = core_.folder(report.folderID) != nullptr;
    bool hasChanged = false;
    if (isKnown && !report.unlisted) {
        hasChanged = mergeKeys(run);
        if (report.cause == RunCause::automatic)
            dropRepeated(report.run);
        const std::vector<LogEntry> stopped =
            core_.memory.absorb(run.folder, report.run, run.restraint.get(), core_.now());
        entries.insert(entries.end(), stopped.begin(), stopped.end());
        hasChanged = hasChanged || core_.memory.hasChanged();
    }
    core_.addLogs(entries);
    // What it has done is in the state now.
    run.journal.reset();
    notify(run);
    if (isKnown)
        retryLater(run);
    if (hasChanged || !entries.empty() || core_.session->journal().awaitsSave())
        if (const auto saved = core_.save(); !saved)
            report.unsaved = saved.error();
    resolveQuestions();
    Q_EMIT core_.store.runFinished(report);
}

/// Tried again every hour, the same failure would in time push everything else out of the log: it
/// is told once a day, and the newest stays. What has been done to a file is always told.
void TidyRuns::dropRepeated(RunResult& run) {
    QSet<QString> untouched;
    for (const FailedFile& file : run.failed)
        untouched.insert(keyPath(file.key));
    if (untouched.isEmpty())
        return;
    std::vector<LogEntry>& logs = core_.state().logs;
    const Timestamp now = core_.now();
    std::erase_if(run.entries, [&](const LogEntry& entry) {
        if (!untouched.contains(entry.originalPath.value_or(QString())))
            return false;
        const auto isOfToday = [&](const LogEntry& known) {
            return isSameFailure(known, entry) && isRecentError(known, now);
        };
        if (std::ranges::any_of(logs, isOfToday))
            return true;
        std::erase_if(logs, [&](const LogEntry& known) { return isSameFailure(known, entry); });
        return false;
    });
}

bool TidyRuns::mergeKeys(const Run& run) {
    const RunResult& result = run.report.run;
    QSet<QString> handled;
    if (run.isWhole())
        handled = result.seenKeys - result.waitingKeys;
    else
        for (const HandledFile& file : result.handled)
            handled.insert(file.keyBefore);

    QHash<QString, QSet<QString>>& all = core_.state().processedFiles;
    const QString name = uuidText(run.folder.id);
    QSet<QString> keys = all.value(name);
    const qsizetype before = keys.size();
    keys.unite(handled);
    bool hasChanged = keys.size() != before;
    if (run.isWhole() && keys.size() > pruneThreshold) {
        const qsizetype merged = keys.size();
        keys.intersect(result.seenKeys);
        hasChanged = hasChanged || keys.size() != merged;
    }
    if (hasChanged)
        all.insert(name, keys);
    return hasChanged;
}

void TidyRuns::notify(const Run& run) const {
    std::vector<QUuid> filed;
    for (const LogEntry& entry : run.report.run.entries)
        if (!entry.isError)
            filed.push_back(entry.id);
    if (filed.empty() || !settingTruth(core_.around.settings, u"notificationsEnabled"))
        return;
    const QString plural = filed.size() == 1 ? QString() : u"s"_s;
    core_.around.notifier.post(
        {.title = u"Quillon tidied %1"_s.arg(run.folder.name()),
         .body = u"Filed %1 file%2."_s.arg(filed.size()).arg(plural),
         .undo = core_.whileAlive([&store = core_.store, filed] { store.undo(filed, {}); }),
         .show = core_.whileAlive([&store = core_.store, id = run.folder.id] {
             if (store.folder(id))
                 store.setSelectedFolderID(id);
         })});
}

void TidyRuns::retryLater(const Run& run) {
    const bool pausedMeanwhile = core_.state().isPaused && !run.beganPaused;
    // A stalled download that goes on is a change, and a change is a reason to look. That the disk
    // has room again tells nobody.
    const bool isUnfinished =
        run.report.deferred > run.report.stalled || run.report.run.stopped.has_value();
    if (isUnfinished && !pausedMeanwhile && !core_.isAtRest())
        retries_.schedule(run.folder.id);
    else
        retries_.cancel(run.folder.id);
}

void TidyRuns::finished(std::uint64_t number) {
    unfinished_.erase(number);
    const std::uint64_t oldest = unfinished_.empty() ? lastNumber_ + 1 : unfinished_.begin()->first;
    while (!afterwards_.empty() && afterwards_.begin()->first < oldest) {
        const std::function<void()> done = std::move(afterwards_.begin()->second);
        afterwards_.erase(afterwards_.begin());
        done();
    }
}

void TidyRuns::afterRuns(std::uint64_t number, std::function<void()> done) {
    if (unfinished_.empty() || unfinished_.begin()->first > number)
        return done();
    afterwards_.emplace(number, std::move(done));
}

void TidyRuns::endEarly(std::uint64_t first, std::uint64_t last) {
    for (const auto& [number, endsEarly] : unfinished_)
        if (number >= first && number <= last)
            *endsEarly = true;
}

bool TidyRuns::isUnsettled(const QUuid& folderID) const {
    return isResolving_ || retries_.isPending(folderID) || waiting_.contains(folderID) ||
           running_.contains(folderID);
}

void TidyRuns::askQuestions() {
    asksQuestions_ = true;
    resolveQuestions();
}

void TidyRuns::resolveQuestions() {
    QuestionResolver& resolver = core_.around.resolver;
    if (!asksQuestions_ || isResolving_ || core_.isAtRest() || !resolver.hasPending())
        return;
    isResolving_ = true;
    const auto told = std::make_shared<QuestionsOutcome>();
    const std::function<void()> resolved = core_.whileAlive([this, told] { takeAnswers(*told); });
    resolver.resolvePending([told, resolved](QuestionsOutcome outcome) {
        *told = std::move(outcome);
        resolved();
    });
}

void TidyRuns::takeAnswers(const QuestionsOutcome& outcome) {
    isResolving_ = false;
    std::vector<QUuid> waiting;
    for (const WatchedFolder& folder : core_.state().folders)
        if (std::ranges::any_of(folder.rules, [](const Rule& rule) {
                return rule.isEnabled && rule.needsDobbin();
            }))
            waiting.push_back(folder.id);
    if (outcome.settled)
        for (const QUuid& folderID : waiting)
            request(folderID, RunCause::automatic);
    Q_EMIT core_.store.questionsResolved(outcome);
}

} // namespace quillon
