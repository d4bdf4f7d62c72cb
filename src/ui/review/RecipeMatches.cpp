#include "ui/review/RecipeMatches.h"

#include "engine/Actions.h"
#include "engine/DateFormats.h"
#include "engine/FirstMatch.h"
#include "platform/FileNames.h"

#include <algorithm>

namespace quillon {
namespace {

/// Few enough to be given up within a few milliseconds, enough for every thread to have its share.
constexpr std::size_t filesAtOnce = 4096;

/// Tells where a rule would leave a file as it is, such as in the very folder that it moves to.
class IdleTest {
public:
    IdleTest(const Platform& platform, const std::string& folder)
        : platform_(platform), folder_(folder), kinds_(platform.contentTypes) {}

    bool operator()(const Rule& rule, const ListedFile& file) {
        const RuleAction& action = rule.actions.front();
        if (action.type != ActionType::move && action.type != ActionType::sortIntoSubfolder)
            return false;
        const std::string path = joinPath(folder_, file.path);
        const auto targets = targetFolders(action, {.platform = platform_,
                                                    .kinds = kinds_,
                                                    .dates = dates_,
                                                    .settings = settings_,
                                                    .path = path,
                                                    .status = file.status,
                                                    .captures = {},
                                                    .watchedFolder = folder_});
        return targets.empty() || targets.front() == path || targets.front() == parentPath(path);
    }

private:
    const Platform& platform_;
    const std::string& folder_;
    KindClassifier kinds_;
    DateFormats dates_;
    EngineSettings settings_;
};

} // namespace

std::optional<std::vector<RecipeBits>> recipeMatches(const std::vector<Rule>& rules,
                                                     const ReadyFiles& files,
                                                     const Platform& platform, FileJudge& judge,
                                                     const std::function<bool()>& mayContinue) {
    const std::vector<CompiledRule> compiled(rules.begin(), rules.end());
    const MatchSetup setup{platform, judge, compiled, files.folder, platform.clock.now()};
    IdleTest isIdle(platform, files.folder);
    std::vector<const ListedFile*> all;
    for (const ListedFile& file : files.files)
        all.push_back(&file);
    std::vector<RecipeBits> result;
    result.reserve(all.size());
    for (std::size_t start = 0; start < all.size(); start += filesAtOnce) {
        if (!mayContinue())
            return std::nullopt;
        const auto part = std::span(all).subspan(start, std::min(filesAtOnce, all.size() - start));
        const std::vector<std::uint64_t> matches = everyMatch(setup, part);
        for (std::size_t i = 0; i < part.size(); ++i) {
            RecipeBits bits{.matching = std::uint8_t(matches[i])};
            for (std::size_t r = 0; r < rules.size(); ++r)
                if ((matches[i] >> r & 1) != 0 && isIdle(rules[r], *part[i]))
                    bits.idle = std::uint8_t(bits.idle | 1U << r);
            result.push_back(bits);
        }
    }
    return result;
}

} // namespace quillon
