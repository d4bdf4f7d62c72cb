#pragma once

#include "assistant/FolderView.h"
#include "assistant/RuleSuggestion.h"

#include <QSet>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quillon {

/// As many as are shown; as many as are counted, since a model may join some of them; and the
/// fewest files that are worth a rule.
inline constexpr std::size_t mostSuggestions = 5;
inline constexpr std::size_t mostCounted = 12;
inline constexpr std::size_t fewestFiles = 3;

/// Which of the candidates suit the folder now, the most useful first, each with its reason and the
/// number of files that it would take, found by matching it. No two take the same file. Left out
/// is what was dismissed and what would mostly take the same files, what the folder has switched
/// off, what would take folders too, and, in a folder that is tidied with its subfolders, what
/// would take even one file out of these. `candidates` are 64 at most. Looks at the disk: on a
/// background thread.
[[nodiscard]] std::vector<RuleSuggestion> chosenSuggestions(const FolderView& view,
                                                            std::vector<RuleSuggestion> candidates,
                                                            const QSet<std::uint64_t>& dismissed,
                                                            std::size_t most = mostCounted);

/// The first that are shown.
[[nodiscard]] std::vector<RuleSuggestion> shownOf(std::vector<RuleSuggestion> suggestions);

} // namespace quillon
