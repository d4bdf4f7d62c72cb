#pragma once

#include "engine/RunResult.h"
#include "model/CleanupChoice.h"
#include "ui/review/CleanupResultRow.h"

#include <vector>

namespace quillon {

/// What came of a clean-up, as it is told.
struct CleanupResult {
    QString title = {};
    QString sentence = {};
    std::vector<CleanupResultRow> rows = {}; ///< recipes first, then what failed
    std::size_t filed = 0;
    bool canUndo = false; ///< at least a part of it
};

/// `rules` are those that were carried out, of the chosen recipes in their order; `ticked` is the
/// number of files that they were to take.
[[nodiscard]] CleanupResult cleanupResult(const RunResult& run, const CleanupChoice& choice,
                                          const std::vector<Rule>& rules, const QString& folder,
                                          std::size_t ticked);

/// The name of the icon of a recipe.
[[nodiscard]] QString recipeIcon(const QString& recipeID);

} // namespace quillon
