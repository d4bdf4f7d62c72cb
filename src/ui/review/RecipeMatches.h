#pragma once

#include "engine/FileJudge.h"
#include "engine/RuleEngine.h"
#include "model/Rule.h"
#include "platform/Platform.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace quillon {

/// Which recipes would take a file: one bit a recipe, the first the lowest.
struct RecipeBits {
    std::uint8_t matching = 0;
    std::uint8_t idle = 0; ///< of these, those that would leave the file where it is
};

inline constexpr std::size_t mostRecipes = 8;

/// For each of the files, whatever the other recipes say; `rules` are those of all recipes, at most
/// mostRecipes. Nothing once it `mayContinue` no more. Blocks, and uses every processor.
[[nodiscard]] std::optional<std::vector<RecipeBits>>
recipeMatches(const std::vector<Rule>& rules, const ReadyFiles& files, const Platform& platform,
              FileJudge& judge, const std::function<bool()>& mayContinue);

} // namespace quillon
