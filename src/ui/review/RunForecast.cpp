#include "ui/review/RunForecast.h"

#include "engine/ActionForecast.h"
#include "engine/FirstMatch.h"
#include "platform/FileNames.h"
#include "store/Sentences.h"

#include <algorithm>
#include <span>

namespace quillon {
namespace {

/// Few enough to be given up within a few milliseconds, enough for every thread to have its share.
constexpr std::size_t filesAtOnce = 4096;

/// Foretells one part of the files after the other.
class Foreteller {
public:
    Foreteller(const WatchedFolder& folder, const Platform& platform, FileJudge& judge,
               const std::string& path)
        : platform_(platform)
        , judge_(judge)
        , path_(path)
        , actions_(platform, judge, settings_, path) {
        for (std::size_t i = 0; i < folder.rules.size(); ++i)
            if (folder.rules[i].isEnabled) {
                rules_.emplace_back(folder.rules[i]);
                places_.push_back(int(i));
            }
    }

    void add(std::span<const ListedFile* const> files, RunForecast& forecast) {
        const MatchSetup setup{platform_, judge_, rules_, path_, platform_.clock.now()};
        const std::vector<FirstMatch> matches = firstMatches(setup, files);
        for (std::size_t i = 0; i < files.size(); ++i) {
            forecast.files.push_back(foretold(*files[i], matches[i]));
            ++forecast.counts[std::size_t(forecast.files.back().fate)];
        }
    }

private:
    ForecastFile foretold(const ListedFile& file, const FirstMatch& match) {
        ForecastFile told{.name = pathText(lastComponent(file.path))};
        if (match.waiting)
            told.fate = FileFate::waiting;
        if (!match.rule)
            return told;
        told.fate = FileFate::changed;
        told.rule = places_[*match.rule];
        told.actions = actions_.phrases(file, rules_[*match.rule]);
        return told;
    }

    const Platform& platform_;
    FileJudge& judge_;
    const std::string& path_;
    std::vector<CompiledRule> rules_;
    std::vector<int> places_; ///< of each among all rules
    EngineSettings settings_;
    ActionForecast actions_;
};

} // namespace

Expected<RunForecast> runForecast(const WatchedFolder& folder, const QSet<QString>& skip,
                                  const Platform& platform, FileJudge& judge,
                                  const std::function<bool()>& mayContinue) {
    const auto ready = RuleEngine(platform, judge).readyFiles(folder);
    if (!ready)
        return std::unexpected(ready.error());
    RunForecast forecast{.deferred = ready->deferred};
    std::vector<const ListedFile*> files;
    for (const ListedFile& file : ready->files)
        if (skip.isEmpty() ||
            !skip.contains(fileKey(joinPath(ready->folder, file.path), file.status)))
            files.push_back(&file);
    Foreteller foreteller(folder, platform, judge, ready->folder);
    const std::span<const ListedFile* const> all(files);
    for (std::size_t start = 0; start < all.size() && mayContinue(); start += filesAtOnce)
        foreteller.add(all.subspan(start, std::min(filesAtOnce, all.size() - start)), forecast);
    return forecast;
}

} // namespace quillon
