#pragma once

#include "assistant/RuleSuggestion.h"
#include "model/WatchedFolder.h"
#include "service/Console.h"

#include <vector>

namespace quillon {

/// What is suggested for a folder, and what to type next.
struct SuggestionList {
    const WatchedFolder& folder;
    bool isWatched = false;
    bool isRemembered = true; ///< so that one of it can be added
    const std::string& typed; ///< the folder as it was given
    const std::vector<RuleSuggestion>& suggestions;
};

/// Whether the log, and undo with it, would lose some of what the rule did.
[[nodiscard]] bool isBeyondUndo(const RuleSuggestion& suggestion);

void printSuggestions(const SuggestionList& list, const Console& console);
void printSuggestionsAsJson(const SuggestionList& list, const Console& console);

} // namespace quillon
