#pragma once

#include "model/CleanupRecipe.h"

#include <QHash>
#include <QSet>

#include <vector>

namespace quillon {

/// Which recipes a clean-up of a folder follows, and how.
struct CleanupChoice {
    std::vector<CleanupRecipe> recipes; ///< all of them, in the folder's order
    QSet<QString> chosen = {};          ///< ids
    QHash<QString, int> days = {};      ///< where they differ from the recipe's own, by id

    [[nodiscard]] bool isChosen(const CleanupRecipe& recipe) const {
        return chosen.contains(recipe.id);
    }
    [[nodiscard]] int daysOf(const CleanupRecipe& recipe) const {
        return days.value(recipe.id, recipe.days.value_or(0));
    }
    /// Takes the recipes that are on by default, and no others.
    void chooseDefaults();
    /// Of the chosen recipes, in the order in which a clean-up follows them.
    [[nodiscard]] std::vector<Rule> rules(const WatchedFolder& folder) const;
    /// The rules that the folder is to have from now on, beside those that it has.
    [[nodiscard]] std::vector<Rule> keptRules(const WatchedFolder& folder) const;
};

} // namespace quillon
