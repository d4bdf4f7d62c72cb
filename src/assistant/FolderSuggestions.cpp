#include "assistant/FolderSuggestions.h"

#include "assistant/SuggestionCandidates.h"
#include "assistant/SuggestionNaming.h"
#include "store/SettingsTable.h"

namespace quillon {

/// One search, handed from thread to thread.
struct FolderSuggestions::Search {
    SuggestionRequest request;
    Found found;
    std::vector<RuleSuggestion> candidates = {}; ///< none: to be made from what is there
    Expected<std::vector<RuleSuggestion>> chosen = {};
};

FolderSuggestions::FolderSuggestions(const Platform& platform, const DobbinJudge& judge,
                                     SuggestionMemory& memory, const Settings& settings,
                                     Background& background, std::function<ModelAccess&()> model)
    : platform_(platform)
    , judge_(judge)
    , memory_(memory)
    , settings_(settings)
    , background_(background)
    , model_(std::move(model)) {}

FolderSuggestions::~FolderSuggestions() {
    *isAlive_ = false;
}

void FolderSuggestions::suggest(SuggestionRequest request, Found found) {
    if (!settingTruth(settings_, u"ai.suggestRules"))
        return found({});
    const auto search = std::make_shared<Search>(std::move(request), std::move(found));
    choose(search, [this, search] {
        if (!search->chosen)
            return search->found(search->chosen);
        const auto isAlive = isAlive_;
        search->found(shownOf(*search->chosen));
        if (*isAlive)
            name(search);
    });
}

void FolderSuggestions::choose(const std::shared_ptr<Search>& search, std::function<void()> done) {
    const auto work = [search, &platform = platform_, &judge = judge_, &memory = memory_] {
        if (const auto remembered = memory.of(search->request.folder.path))
            search->request.dismissed.unite(remembered->dismissedKeys());
        const auto view = FolderView::read(platform, judge, {}, search->request);
        if (!view) {
            search->chosen = std::unexpected(view.error());
            return;
        }
        if (search->candidates.empty())
            search->candidates = suggestionCandidates(*view);
        search->chosen =
            chosenSuggestions(*view, std::move(search->candidates), search->request.dismissed);
    };
    background_.start(work, [isAlive = isAlive_, done = std::move(done)] {
        if (*isAlive)
            done();
    });
}

QCoro::Task<> FolderSuggestions::name(std::shared_ptr<Search> search) {
    const auto isAlive = isAlive_;
    if (!namingRequest(*search->chosen))
        co_return;
    auto named = co_await askForNames(model_(), *search->chosen, search->request.folder);
    if (!*isAlive || !named)
        co_return;
    search->candidates = std::move(*named);
    choose(search, [search] {
        if (search->chosen)
            search->found(shownOf(*search->chosen));
    });
}

} // namespace quillon
