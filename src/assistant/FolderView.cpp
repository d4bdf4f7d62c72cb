#include "assistant/FolderView.h"

#include "assistant/DobbinJudge.h"
#include "engine/FirstMatch.h"
#include "platform/Clock.h"
#include "platform/FileNames.h"

#include <algorithm>

namespace quillon {
namespace {

std::vector<CompiledRule> compiled(const std::vector<Rule>& rules, bool enabled) {
    std::vector<CompiledRule> result;
    for (const Rule& rule : rules)
        if (rule.isEnabled == enabled)
            result.emplace_back(rule);
    return result;
}

} // namespace

FolderView::FolderView(const Platform& platform, const DobbinJudge& judge,
                       const WatchedFolder& folder, ReadyFiles ready)
    : platform_(platform)
    , judge_(std::make_unique<QuietJudge>(judge))
    , folder_(folder)
    , ready_(std::make_unique<const ReadyFiles>(std::move(ready)))
    , now_(platform.clock.now()) {}

Expected<FolderView> FolderView::read(const Platform& platform, const DobbinJudge& judge,
                                      const EngineSettings& settings,
                                      const SuggestionRequest& request) {
    QuietJudge before(judge); // what the folder's own rules wait for is not what others would
    Expected<ReadyFiles> ready = RuleEngine(platform, before, settings).readyFiles(request.folder);
    if (!ready)
        return std::unexpected(ready.error());
    FolderView view(platform, judge, request.folder, std::move(*ready));

    std::vector<const ListedFile*> files;
    files.reserve(view.ready_->files.size());
    const bool isHandledLeft = request.folder.onlyNewFiles && !request.handled.isEmpty();
    for (const ListedFile& file : view.ready_->files)
        if (!isHandledLeft || !request.handled.contains(
                                  fileKey(joinPath(view.ready_->folder, file.path), file.status)))
            files.push_back(&file);

    const std::vector<CompiledRule> rules = compiled(request.folder.rules, true);
    if (rules.empty()) {
        view.files_ = std::move(files);
        return view;
    }
    const std::vector<FirstMatch> taken =
        firstMatches({platform, before, rules, view.ready_->folder, view.now_}, files);
    for (std::size_t i = 0; i < files.size(); ++i)
        if (!taken[i].rule && !taken[i].waiting)
            view.files_.push_back(files[i]);
    return view;
}

std::vector<std::uint64_t> FolderView::matches(const std::vector<Rule>& rules) const {
    const std::vector<CompiledRule> all = compiled(rules, true);
    return everyMatch({platform_, *judge_, all, ready_->folder, now_}, files_);
}

bool FolderView::isWaiting(const ListedFile& file) const {
    return judge_->isWaiting(joinPath(ready_->folder, file.path));
}

bool FolderView::isSwitchedOff(const Rule& rule, std::span<const ListedFile* const> caught) const {
    const auto doesTheSame = [&](const Rule& other) {
        return !other.isEnabled && !other.actions.empty() &&
               other.actions.front().type == rule.actions.front().type;
    };
    return std::ranges::any_of(folder_.rules, [&](const Rule& other) {
        if (!doesTheSame(other))
            return false;
        const std::vector<CompiledRule> rules{CompiledRule(other)};
        const auto found = firstMatches({platform_, *judge_, rules, ready_->folder, now_}, caught);
        return std::ranges::all_of(found,
                                   [](const FirstMatch& match) { return match.rule.has_value(); });
    });
}

} // namespace quillon
