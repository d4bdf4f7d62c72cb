#include "ui/editor/RuleCatch.h"

#include "engine/FirstMatch.h"
#include "engine/KindClassifier.h"
#include "platform/Clock.h"
#include "platform/FileNames.h"
#include "store/Sentences.h"

#include <algorithm>
#include <array>
#include <span>

namespace quillon {
namespace {

constexpr qsizetype mostNames = 10;
/// Few enough to be given up within a few milliseconds, enough for every thread to have its share.
constexpr std::size_t filesAtOnce = 4096;

ExampleFile exampleOf(const ListedFile& file, const CompiledRule& rule, const ReadyFiles& files,
                      const Platform& platform) {
    KindClassifier kinds(platform.contentTypes);
    FileFacts facts(platform, kinds, files.folder, file);
    return {.name = std::string(lastComponent(file.path)),
            .modified = file.status.modified,
            .captures = rule.captures(facts)};
}

} // namespace

std::optional<RuleCatch> ruleCatch(const Rule& rule, const ReadyFiles& files,
                                   const Platform& platform, FileJudge& judge,
                                   const std::function<bool()>& mayContinue) {
    const std::vector<CompiledRule> rules{CompiledRule(rule)};
    const MatchSetup setup{platform, judge, rules, files.folder, platform.clock.now()};
    const std::span<const ListedFile> all(files.files);
    RuleCatch result{.tested = all.size()};
    const ListedFile* example = all.empty() ? nullptr : &all.front();

    std::array<const ListedFile*, filesAtOnce> some{};
    for (std::size_t start = 0; start < all.size(); start += filesAtOnce) {
        if (!mayContinue())
            return std::nullopt;
        const auto part = all.subspan(start, std::min(filesAtOnce, all.size() - start));
        std::ranges::transform(part, some.begin(), [](const ListedFile& file) { return &file; });
        const std::vector<FirstMatch> found =
            firstMatches(setup, std::span(some).first(part.size()));
        for (std::size_t i = 0; i < found.size(); ++i) {
            result.waiting += found[i].waiting;
            if (!found[i].rule)
                continue;
            if (result.caught++ == 0)
                example = &part[i];
            if (result.names.size() < mostNames)
                result.names.append(pathText(lastComponent(part[i].path)));
        }
    }
    if (example)
        result.example = exampleOf(*example, rules.front(), files, platform);
    return result;
}

} // namespace quillon
