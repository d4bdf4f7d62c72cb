#include "engine/BatchRun.h"

#include "engine/RunRestraint.h"
#include "platform/FileNames.h"

namespace quillon {
namespace {

// Enough that one sync of the journal is nothing beside the work it covers.
constexpr std::size_t fullGroup = 8192;

bool isUnchanged(const FileStatus& now, const FileStatus& listed) {
    return now.isSameFileAs(listed) && now.size == listed.size && now.modified == listed.modified;
}

void addPhrase(LogEntry& entry, const QString& phrase) {
    if (!entry.actionSummary.isEmpty())
        entry.actionSummary += QStringLiteral(", ");
    entry.actionSummary += phrase;
}

void fail(LogEntry& entry, const QString& why) {
    addPhrase(entry, why);
    entry.isError = true;
}

/// Takes what one action did into the file's entry and says whether the file is still there for the
/// next one.
bool absorb(const ActionResult& result, ActionType type, LogEntry& entry) {
    entry.isError = entry.isError || !result.succeeded;
    for (const QString& phrase : result.phrases)
        addPhrase(entry, phrase);
    if (!result.trashedPath.empty())
        entry.trashedPath = QString::fromUtf8(result.trashedPath);
    // Undo takes the file itself back: once it has moved, no copy stands for it.
    if (!result.copyPath.empty() && !entry.undoable)
        entry.currentPath = QString::fromUtf8(result.copyPath);

    switch (result.place) {
    case ActionResult::Place::same:
        return true;
    case ActionResult::Place::moved:
        entry.currentPath = QString::fromUtf8(result.path);
        entry.undoable = true;
        return true;
    case ActionResult::Place::gone:
        entry.currentPath.reset();
        entry.undoable = entry.undoable || type == ActionType::trash;
        return false;
    }
    return false;
}

} // namespace

BatchRun::BatchRun(const Setup& setup, const ReadyFiles& items, const std::vector<Rule>& rules,
                   const QSet<QString>& skip)
    : setup_(setup)
    , keepsKeys_(!setup.folder.id.isNull())
    , items_(items)
    , skip_(skip)
    , kinds_(setup.platform.contentTypes)
    , folderName_(setup.folder.name()) {
    for (const Rule& rule : rules)
        if (rule.isEnabled)
            rules_.emplace_back(rule);
    asksJudge_ = std::ranges::any_of(
        rules_, [](const CompiledRule& rule) { return rule.rule().needsDobbin(); });
}

RunResult BatchRun::run() {
    for (std::size_t start = 0; start < items_.files.size();) {
        Group group = take(start);
        if (!group.intents.empty())
            if (const auto written = setup_.journal.intend(group.intents); !written) {
                result_.stopped = written.error();
                return std::move(result_);
            }
        for (std::size_t i = 0; i < group.taken.size(); ++i) {
            result_.interrupted = setup_.settings.mayContinue && !setup_.settings.mayContinue();
            if (result_.interrupted)
                return std::move(result_);
            act(group.taken[i], group.intents[i].entry);
            report(std::size_t(group.taken[i].file - items_.files.data()) + 1);
        }
        report(group.end);
        start = group.end;
    }
    return std::move(result_);
}

BatchRun::Group BatchRun::take(std::size_t start) {
    const std::span<const ListedFile> rest = std::span(items_.files).subspan(start);
    const std::span<const ListedFile> files = rest.first(std::min(fullGroup, rest.size()));
    const std::vector<const ListedFile*> candidates = unskipped(files);
    const MatchSetup matching{
        setup_.platform,          setup_.judge, rules_, items_.folder, setup_.platform.clock.now(),
        setup_.settings.restraint};
    const std::vector<FirstMatch> matches = firstMatches(matching, candidates);

    Group group{.taken = {}, .intents = {}, .end = start + files.size()};
    const auto count = std::size_t(std::ranges::count_if(
        matches, [](const FirstMatch& match) { return match.rule.has_value(); }));
    group.taken.reserve(count);
    group.intents.reserve(count);
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        if (matches[i].waiting)
            addWaiting(*candidates[i]);
        if (!matches[i].rule)
            continue;
        const CompiledRule& rule = rules_[*matches[i].rule];
        if (!mayAct(rule, *candidates[i]))
            continue;
        group.taken.push_back(taken(*candidates[i], rule));
        group.intents.push_back(intent(group.taken.back()));
    }
    return group;
}

std::vector<const ListedFile*> BatchRun::unskipped(std::span<const ListedFile> files) {
    std::vector<const ListedFile*> candidates;
    candidates.reserve(files.size());
    for (const ListedFile& file : files) {
        if (keepsKeys_ || !skip_.isEmpty()) {
            const QString key = listedKey(file);
            result_.seenKeys.insert(key);
            if (skip_.contains(key))
                continue;
        }
        candidates.push_back(&file);
    }
    return candidates;
}

void BatchRun::addWaiting(const ListedFile& file) {
    result_.waiting.append(QString::fromUtf8(lastComponent(file.path)));
    if (keepsKeys_)
        result_.waitingKeys.insert(listedKey(file));
}

bool BatchRun::mayAct(const CompiledRule& rule, const ListedFile& file) const {
    RunRestraint* const restraint = setup_.settings.restraint;
    return !restraint || restraint->mayAct(rule.rule(), listedKey(file));
}

BatchRun::Taken BatchRun::taken(const ListedFile& file, const CompiledRule& rule) {
    FileFacts facts(setup_.platform, kinds_, items_.folder, file);
    return {.file = &file,
            .rule = &rule,
            .context = {.platform = setup_.platform,
                        .kinds = kinds_,
                        .dates = dates_,
                        .settings = setup_.settings,
                        .path = facts.path(),
                        .status = file.status,
                        .counter = ++counters_[rule.rule().id],
                        .captures = rule.captures(facts),
                        .watchedFolder = items_.folder,
                        .smartName = rule.smartName(setup_.judge, facts)}};
}

Intent BatchRun::intent(const Taken& taken) const {
    const QString originalPath = QString::fromUtf8(taken.context.path);
    const Rule& rule = taken.rule->rule();
    Intent intent{.entry = {.date = setup_.platform.clock.now(),
                            .fileName = QString::fromUtf8(lastComponent(taken.file->path)),
                            .ruleName = rule.name,
                            .folderName = folderName_,
                            .originalPath = originalPath,
                            .currentPath = originalPath,
                            .batchID = setup_.batchID},
                  .status = taken.file->status,
                  .targetFolders = {}};
    if (!setup_.folder.id.isNull())
        intent.entry.folderID = setup_.folder.id;

    ActionContext ahead = taken.context;
    for (const RuleAction& action : rule.actions) {
        const std::vector<std::string> targets = targetFolders(action, ahead);
        intent.targetFolders.insert(intent.targetFolders.end(), targets.begin(), targets.end());
        if (!targets.empty() && action.type != ActionType::copy)
            ahead.path = joinPath(targets.front(), lastComponent(ahead.path));
    }
    return intent;
}

void BatchRun::act(Taken& taken, LogEntry& entry) {
    FileSystem& fileSystem = setup_.platform.fileSystem;
    ActionContext& context = taken.context;

    // Whatever was decided holds for the file as it was listed; one that has changed since, perhaps
    // by another file's script, waits for the next run.
    Expected<FileStatus> status = fileSystem.status(context.path);
    if (!status || !isUnchanged(*status, taken.file->status))
        return;

    const Rule& rule = taken.rule->rule();
    bool acted = false;
    bool remains = true;
    HandledFile handled{.ruleID = rule.id};
    for (const RuleAction& action : rule.actions) {
        context.status = *status;
        const ActionResult result = performAction(action, context);
        remains = absorb(result, action.type, entry);
        acted = acted || result.acted;
        if (keepsKeys_ && !result.copyPath.empty())
            handled.copyKeys.append(currentKey(result.copyPath));
        if (!result.phrases.isEmpty()) {
            entry.date = setup_.platform.clock.now();
            setup_.journal.record(entry);
        }
        if (!remains)
            break;
        if (result.place == ActionResult::Place::moved) {
            if (asksJudge_)
                setup_.judge.fileMoved(context.path, *status, result.path);
            context.path = result.path;
        }
        if (&action != &rule.actions.back())
            status = fileSystem.status(context.path);
        if (!status) {
            if (status.error().kind != ErrorKind::notFound)
                fail(entry, status.error().message);
            break;
        }
    }
    const bool failed = entry.isError && !acted;
    if (!entry.actionSummary.isEmpty())
        result_.entries.push_back(std::move(entry));
    if (!keepsKeys_ || (!acted && !failed))
        return;
    handled.keyBefore = listedKey(*taken.file);
    if (failed)
        return result_.failed.push_back({rule.id, handled.keyBefore});
    if (remains)
        handled.keyAfter = currentKey(context.path);
    result_.handled.push_back(std::move(handled));
}

QString BatchRun::listedKey(const ListedFile& file) const {
    return fileKey(joinPath(items_.folder, file.path), file.status);
}

QString BatchRun::currentKey(const std::string& path) const {
    const Expected<FileStatus> status = setup_.platform.fileSystem.status(path);
    return status ? fileKey(path, *status) : QString();
}

void BatchRun::report(std::size_t done) const {
    if (setup_.progress)
        setup_.progress(done, items_.files.size());
}

} // namespace quillon
