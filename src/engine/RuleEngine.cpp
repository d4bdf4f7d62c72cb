#include "engine/RuleEngine.h"

#include "engine/BatchRun.h"
#include "engine/FirstMatch.h"
#include "engine/Packages.h"
#include "platform/CloudFiles.h"
#include "platform/FileNames.h"

#include <array>

namespace quillon {
namespace {

// Extensions of downloads in progress.
constexpr std::array<std::string_view, 5> settlingExtensions{"crdownload", "download", "part",
                                                             "partial", "opdownload"};

bool hasSettlingExtension(std::string_view path) {
    const std::string_view extension = splitName(lastComponent(path)).extension;
    return std::ranges::any_of(settlingExtensions, [&](std::string_view settling) {
        return std::ranges::equal(extension, settling, {}, [](char c) {
            return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
        });
    });
}

std::string folderPath(const WatchedFolder& folder) {
    std::string path = folder.path.toStdString();
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

std::vector<const ListedFile*> pointers(const std::vector<ListedFile>& files) {
    std::vector<const ListedFile*> result;
    result.reserve(files.size());
    for (const ListedFile& file : files)
        result.push_back(&file);
    return result;
}

QString fileName(const ListedFile& file) {
    return QString::fromUtf8(lastComponent(file.path));
}

} // namespace

RuleEngine::RuleEngine(const Platform& platform, FileJudge& judge, EngineSettings settings)
    : platform_(platform), judge_(judge), settings_(settings) {}

Expected<Listing> RuleEngine::files(const WatchedFolder& folder) const {
    const std::string path = folderPath(folder);
    Expected<Listing> listing =
        platform_.fileSystem.list(path, {.recursive = folder.isRecursive, .isPackage = isPackage});
    if (listing && folder.skipOnlineOnly)
        std::erase_if(listing->files, [&](const ListedFile& file) {
            return platform_.cloudFiles.isOnlineOnly(joinPath(path, file.path));
        });
    return listing;
}

Expected<ReadyFiles> RuleEngine::readyFiles(const WatchedFolder& folder) const {
    Expected<Listing> listing = files(folder);
    if (!listing)
        return std::unexpected(listing.error());

    const Timestamp now = platform_.clock.now();
    // A date in the future says nothing about when the file was last written, unless it is so near
    // that two clocks merely disagree.
    const auto isSettling = [&](const ListedFile& file) {
        return hasSettlingExtension(file.path) ||
               (settings_.settleTime.count() > 0 &&
                std::chrono::abs(now - file.status.modified) < settings_.settleTime);
    };
    ReadyFiles ready{.folder = folderPath(folder),
                     .files = std::move(listing->files),
                     .skippedNames = listing->skippedNames};
    ready.deferred = std::erase_if(ready.files, isSettling);
    return ready;
}

std::size_t RuleEngine::onlineOnlyCount(const WatchedFolder& folder) const {
    const std::string path = folderPath(folder);
    const auto listing =
        platform_.fileSystem.list(path, {.recursive = folder.isRecursive, .isPackage = isPackage});
    if (!listing)
        return 0;
    return std::size_t(std::ranges::count_if(listing->files, [&](const ListedFile& file) {
        return platform_.cloudFiles.isOnlineOnly(joinPath(path, file.path));
    }));
}

QSet<QString> RuleEngine::currentKeys(const WatchedFolder& folder) const {
    QSet<QString> keys;
    const std::string path = folderPath(folder);
    if (const auto listing = files(folder))
        for (const ListedFile& file : listing->files)
            keys.insert(fileKey(joinPath(path, file.path), file.status));
    return keys;
}

MatchProbe RuleEngine::probe(const Rule& rule, const ReadyFiles& ready) const {
    const std::vector<CompiledRule> rules{CompiledRule(rule)};
    const std::vector<FirstMatch> matches = firstMatches(
        {platform_, judge_, rules, ready.folder, platform_.clock.now()}, pointers(ready.files));
    MatchProbe probe{.matches = {}, .tested = ready.files.size()};
    for (std::size_t i = 0; i < matches.size(); ++i)
        if (matches[i].rule)
            probe.matches.append(fileName(ready.files[i]));
    return probe;
}

std::vector<PreviewItem> RuleEngine::preview(const std::vector<Rule>& rules,
                                             const ReadyFiles& ready) const {
    std::vector<CompiledRule> enabled;
    for (const Rule& rule : rules)
        if (rule.isEnabled)
            enabled.emplace_back(rule);
    const std::vector<FirstMatch> matches = firstMatches(
        {platform_, judge_, enabled, ready.folder, platform_.clock.now()}, pointers(ready.files));

    KindClassifier kinds(platform_.contentTypes);
    DateFormats dates;
    std::vector<unsigned> counters(enabled.size(), 0);
    std::vector<PreviewItem> items;
    for (std::size_t i = 0; i < matches.size(); ++i) {
        if (!matches[i].rule)
            continue;
        const CompiledRule& rule = enabled[*matches[i].rule];
        const ListedFile& file = ready.files[i];
        FileFacts facts(platform_, kinds, ready.folder, file);
        const ActionContext context{.platform = platform_,
                                    .kinds = kinds,
                                    .dates = dates,
                                    .settings = settings_,
                                    .path = facts.path(),
                                    .status = file.status,
                                    .counter = ++counters[*matches[i].rule],
                                    .captures = rule.captures(facts),
                                    .watchedFolder = ready.folder};
        PreviewItem item{.fileName = fileName(file), .ruleName = rule.rule().name, .actions = {}};
        for (const RuleAction& action : rule.rule().actions)
            item.actions.append(describeAction(action, context));
        items.push_back(std::move(item));
    }
    return items;
}

RunResult RuleEngine::execute(const ReadyFiles& items, const std::vector<Rule>& rules,
                              const WatchedFolder& folder, const QSet<QString>& skip,
                              std::optional<QUuid> batchID, RunJournal& journal,
                              const Progress& progress) const {
    return BatchRun({platform_, judge_, settings_, folder, batchID, journal, progress}, items,
                    rules, skip)
        .run();
}

QString fileKey(const std::string& path, const FileStatus& status) {
    return QString::fromUtf8(path) + u'|' + QString::number(status.size) + u'|' +
           QString::number(status.modified.time_since_epoch().count());
}

} // namespace quillon
