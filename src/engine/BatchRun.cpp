#include "engine/BatchRun.h"

#include "platform/FileNames.h"

namespace quillon {
namespace {

// Enough that one sync of the journal is nothing beside the work it covers.
constexpr std::size_t fullGroup = 8192;

bool runsForeignCode(const Rule& rule) {
    return std::ranges::any_of(rule.actions, [](const RuleAction& action) {
        return action.type == ActionType::runScript || action.type == ActionType::runShortcut;
    });
}

bool isUnchanged(const FileStatus& now, const FileStatus& listed) {
    return now.isSameFileAs(listed) && now.size == listed.size && now.modified == listed.modified;
}

/// Takes what one action did into the file's entry and says whether the file is still there for the
/// next one.
bool absorb(const ActionResult& result, ActionType type, LogEntry& entry) {
    entry.isError = entry.isError || !result.succeeded;
    for (const QString& phrase : result.phrases) {
        if (!entry.actionSummary.isEmpty())
            entry.actionSummary += QStringLiteral(", ");
        entry.actionSummary += phrase;
    }
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
    : setup_(setup), items_(items), skip_(skip), kinds_(setup.platform.contentTypes) {
    for (const Rule& rule : rules)
        if (rule.isEnabled)
            rules_.emplace_back(rule);
    // A script may change any file of the folder, so the next file is matched only after it has
    // run.
    const bool foreign = std::ranges::any_of(
        rules_, [](const CompiledRule& rule) { return runsForeignCode(rule.rule()); });
    groupSize_ = foreign ? 1 : fullGroup;
}

RunResult BatchRun::run() {
    const std::span<const ListedFile> files(items_.files);
    for (std::size_t start = 0; start < files.size(); start += groupSize_) {
        std::vector<Taken> group =
            take(files.subspan(start, std::min(groupSize_, files.size() - start)));
        if (const auto written = writeIntents(group); !written) {
            result_.stopped = written.error();
            return std::move(result_);
        }
        for (std::size_t i = 0; i < group.size(); ++i) {
            act(group[i]);
            if (i % 64 == 0)
                report(start + i);
        }
        report(std::min(start + groupSize_, files.size()));
    }
    return std::move(result_);
}

std::vector<BatchRun::Taken> BatchRun::take(std::span<const ListedFile> files) {
    std::vector<const ListedFile*> candidates;
    candidates.reserve(files.size());
    for (const ListedFile& file : files) {
        const QString key = fileKey(joinPath(items_.folder, file.path), file.status);
        result_.seenKeys.insert(key);
        if (!skip_.contains(key))
            candidates.push_back(&file);
    }

    const MatchSetup matching{setup_.platform, setup_.judge, rules_, items_.folder,
                              setup_.platform.clock.now()};
    const std::vector<FirstMatch> matches = firstMatches(matching, candidates);
    std::vector<Taken> taken;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        if (matches[i].waiting)
            result_.waiting.append(QString::fromUtf8(lastComponent(candidates[i]->path)));
        else if (matches[i].rule)
            taken.push_back(planned(*candidates[i], rules_[*matches[i].rule]));
    }
    return taken;
}

BatchRun::Taken BatchRun::planned(const ListedFile& file, const CompiledRule& rule) {
    FileFacts facts(setup_.platform, kinds_, items_.folder, file);
    const QString originalPath = QString::fromUtf8(facts.path());
    Taken taken{
        .file = &file,
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
                    .smartName = rule.smartName(setup_.judge, facts)},
        .intent = {.entry = {.date = setup_.platform.clock.now(),
                             .fileName = QString::fromUtf8(lastComponent(file.path)),
                             .ruleName = rule.rule().name,
                             .folderName = setup_.folder.name(),
                             .originalPath = originalPath,
                             .currentPath = originalPath,
                             .batchID = setup_.batchID},
                   .status = file.status,
                   .targetFolders = {}},
    };
    if (!setup_.folder.id.isNull())
        taken.intent.entry.folderID = setup_.folder.id;

    ActionContext ahead = taken.context;
    for (const RuleAction& action : rule.rule().actions) {
        const std::vector<std::string> targets = targetFolders(action, ahead);
        taken.intent.targetFolders.insert(taken.intent.targetFolders.end(), targets.begin(),
                                          targets.end());
        if (!targets.empty() && action.type != ActionType::copy)
            ahead.path = joinPath(targets.front(), lastComponent(ahead.path));
    }
    return taken;
}

Expected<void> BatchRun::writeIntents(std::span<const Taken> group) {
    if (group.empty())
        return {};
    std::vector<Intent> intents;
    intents.reserve(group.size());
    for (const Taken& taken : group)
        intents.push_back(taken.intent);
    return setup_.journal.intend(intents);
}

void BatchRun::act(Taken& taken) {
    FileSystem& fileSystem = setup_.platform.fileSystem;
    ActionContext& context = taken.context;
    LogEntry& entry = taken.intent.entry;

    // Whatever was decided holds for the file as it was listed; one that has changed since waits
    // for the next run.
    Expected<FileStatus> status = fileSystem.status(context.path);
    if (!status || !isUnchanged(*status, taken.file->status))
        return;

    for (const RuleAction& action : taken.rule->rule().actions) {
        context.status = *status;
        const ActionResult result = performAction(action, context);
        const bool remains = absorb(result, action.type, entry);
        if (!result.phrases.isEmpty()) {
            entry.date = setup_.platform.clock.now();
            setup_.journal.record(entry);
        }
        if (!remains)
            break;
        if (result.place == ActionResult::Place::moved)
            context.path = result.path;
        if (&action != &taken.rule->rule().actions.back())
            status = fileSystem.status(context.path);
        if (!status)
            break;
    }
    if (!entry.actionSummary.isEmpty())
        result_.entries.push_back(entry);
}

void BatchRun::report(std::size_t done) const {
    if (setup_.progress)
        setup_.progress(done, items_.files.size());
}

} // namespace quillon
