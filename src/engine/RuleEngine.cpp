#include "engine/RuleEngine.h"

#include "engine/ActionForecast.h"
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

// Nobody is writing to a download that has not grown for so long.
constexpr std::chrono::hours stalledAfter{1};

bool hasSettlingExtension(std::string_view path) {
    const std::string_view extension = splitName(lastComponent(path)).extension;
    return std::ranges::any_of(settlingExtensions, [&](std::string_view settling) {
        return isSameIgnoringCase(extension, settling);
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

// Files between two reports, enough for every thread to have its share.
constexpr std::size_t progressStep = 32'768;

} // namespace

RuleEngine::RuleEngine(const Platform& platform, FileJudge& judge, EngineSettings settings)
    : platform_(platform), judge_(judge), settings_(std::move(settings)) {}

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
    ready.deferred = std::erase_if(ready.files, [&](const ListedFile& file) {
        const bool settles = isSettling(file);
        ready.stalled += settles && now - file.status.modified > stalledAfter;
        return settles;
    });
    return ready;
}

std::size_t RuleEngine::onlineOnlyCount(const WatchedFolder& folder) const {
    WatchedFolder whole = folder;
    whole.skipOnlineOnly = false;
    const auto listing = files(whole);
    if (!listing)
        return 0;
    return std::size_t(std::ranges::count_if(listing->files, [&](const ListedFile& file) {
        return platform_.cloudFiles.isOnlineOnly(joinPath(folderPath(folder), file.path));
    }));
}

Expected<QSet<QString>> RuleEngine::currentKeys(const WatchedFolder& folder,
                                                std::optional<Timestamp> thereAt) const {
    const Expected<Listing> listing = files(folder);
    if (!listing)
        return std::unexpected(listing.error());
    const Timestamp now = platform_.clock.now();
    // Whatever is made, moved here or given other contents gets this date, too. One in the future
    // comes from another clock and tells nothing.
    const auto cameAfterwards = [&](const FileStatus& status) {
        return thereAt && status.changed >= *thereAt && status.changed <= now;
    };
    QSet<QString> keys;
    const std::string path = folderPath(folder);
    for (const ListedFile& file : listing->files)
        if (!cameAfterwards(file.status))
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
                                             const ReadyFiles& ready,
                                             const Progress& progress) const {
    std::vector<CompiledRule> enabled;
    for (const Rule& rule : rules)
        if (rule.isEnabled)
            enabled.emplace_back(rule);
    const MatchSetup matching{platform_, judge_, enabled, ready.folder, platform_.clock.now()};
    const std::vector<const ListedFile*> files = pointers(ready.files);

    ActionForecast forecast(platform_, judge_, settings_, ready.folder);
    std::vector<PreviewItem> items;
    for (std::size_t start = 0; start < files.size(); start += progressStep) {
        const auto part =
            std::span(files).subspan(start, std::min(progressStep, files.size() - start));
        const std::vector<FirstMatch> matches = firstMatches(matching, part);
        for (std::size_t i = 0; i < matches.size(); ++i)
            if (matches[i].rule) {
                const CompiledRule& rule = enabled[*matches[i].rule];
                items.push_back({.fileName = fileName(*part[i]),
                                 .ruleName = rule.rule().name,
                                 .actions = forecast.phrases(*part[i], rule)});
            }
        if (progress)
            progress(start + part.size(), files.size());
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

QString keyPath(const QString& key) {
    return key.section(u'|', 0, -3);
}

} // namespace quillon
