#pragma once

#include "cli/Inputs.h"
#include "cli/Options.h"
#include "cli/Refusal.h"
#include "model/CleanupChoice.h"

#include <vector>

namespace quillon {

/// What a clean-up of one folder comes down to.
struct CleanupPlan {
    FolderInput input; ///< the rules are those of the chosen recipes
    CleanupChoice choice;
    bool keeps = false;

    [[nodiscard]] std::vector<Rule> keptRules() const { return choice.keptRules(input.folder); }
};

/// Looks at the folder, which need not be one of `watched` unless the recipes are to become rules.
[[nodiscard]] Chosen<CleanupPlan> planCleanup(const CleanupOptions& options,
                                              const std::vector<WatchedFolder>& watched,
                                              const Console& console, Services& services);

} // namespace quillon
