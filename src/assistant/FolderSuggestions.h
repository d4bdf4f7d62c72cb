#pragma once

#include "assistant/FolderView.h"
#include "assistant/ModelAccess.h"
#include "assistant/RuleSuggestions.h"
#include "assistant/SuggestionMemory.h"
#include "platform/Background.h"
#include "platform/Settings.h"

#include <QCoroTask>

#include <functional>
#include <memory>
#include <vector>

namespace quillon {

/// Rules for a folder to be offered to its owner, such as on cards beside it. On the event loop's
/// thread; looks at the disk in the background, and asks a model only to name what was found.
class FolderSuggestions {
public:
    /// Borrows all; `model` is called when there is something to name. What is under way in the
    /// background when this goes away uses the first three until the background ends.
    FolderSuggestions(const Platform& platform, const DobbinJudge& judge, SuggestionMemory& memory,
                      const Settings& settings, Background& background,
                      std::function<ModelAccess&()> model);
    ~FolderSuggestions();
    FolderSuggestions(const FolderSuggestions&) = delete;
    FolderSuggestions& operator=(const FolderSuggestions&) = delete;

    using Found = std::function<void(Expected<std::vector<RuleSuggestion>>)>;

    /// Calls `found` with what suits the folder, the most useful first, and a second time when a
    /// model has found better names for it. Nothing is found while the user has switched
    /// suggestions off; fails as FileSystem::list does. What has been dismissed is left out,
    /// whatever `request.dismissed` holds. Not called any more once this has gone.
    void suggest(SuggestionRequest request, Found found);

private:
    struct Search;

    QCoro::Task<> name(std::shared_ptr<Search> search);
    void choose(const std::shared_ptr<Search>& search, std::function<void()> done);

    const Platform& platform_;
    const DobbinJudge& judge_;
    SuggestionMemory& memory_;
    const Settings& settings_;
    Background& background_;
    std::function<ModelAccess&()> model_;
    const std::shared_ptr<bool> isAlive_ = std::make_shared<bool>(true);
};

} // namespace quillon
