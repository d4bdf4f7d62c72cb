#pragma once

#include "cli/Inputs.h"
#include "cli/Options.h"
#include "cli/Refusal.h"
#include "model/CleanupRecipe.h"

#include <QHash>
#include <QSet>

#include <vector>

namespace quillon {

/// What a clean-up of one folder comes down to.
struct CleanupPlan {
    FolderInput input;                  ///< the rules are those of the chosen recipes
    std::vector<CleanupRecipe> recipes; ///< all of them, in the folder's order
    QSet<QString> chosen;               ///< ids
    QHash<QString, int> days;           ///< as given, by id
    bool keeps = false;

    [[nodiscard]] bool isChosen(const CleanupRecipe& recipe) const {
        return chosen.contains(recipe.id);
    }
    [[nodiscard]] int daysOf(const CleanupRecipe& recipe) const {
        return days.value(recipe.id, recipe.days.value_or(0));
    }
    /// The rules that the folder is to have from now on, beside those that it has.
    [[nodiscard]] std::vector<Rule> keptRules() const;
};

/// Looks at the folder, which need not be one of `watched` unless the recipes are to become rules.
[[nodiscard]] Chosen<CleanupPlan> planCleanup(const CleanupOptions& options,
                                              const std::vector<WatchedFolder>& watched,
                                              const Console& console, Services& services);

} // namespace quillon
