#pragma once

#include "model/Rule.h"
#include "model/WatchedFolder.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <optional>
#include <vector>

namespace quillon {

/// One line of the clean-up sheet: tidies a folder once, or becomes a permanent rule.
struct CleanupRecipe {
    QString id = {}; ///< a stable key under which the user's choices are remembered
    QString title = {};
    QString symbolName = {};
    std::optional<int> days =
        std::nullopt; ///< age threshold that is suggested; absent without an age test
    bool isOnByDefault = false;
    QString warning = {}; ///< shown beside it; empty for none
    QString (*description)(int days) = nullptr;
    /// The rule that carries the recipe out in a folder; every call gives fresh ids.
    Rule (*makeRule)(const WatchedFolder& folder, int days) = nullptr;
};

/// The recipes in the order in which this folder is offered them: a desktop gets screenshots first.
[[nodiscard]] std::vector<CleanupRecipe> recipesFor(const WatchedFolder& folder);

/// The recipes as permanent rules of the folder. `enabled` holds the ids that are ticked, `days`
/// the thresholds chosen by id. An unticked recipe is added switched off, one whose rule's name the
/// folder has already is left out.
[[nodiscard]] std::vector<Rule> conversionRules(const std::vector<CleanupRecipe>& recipes,
                                                const QSet<QString>& enabled,
                                                const QHash<QString, int>& days,
                                                const WatchedFolder& folder,
                                                const QSet<QString>& existingRuleNames);

} // namespace quillon
