#pragma once

#include "engine/CompiledRule.h"
#include "engine/FileJudge.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quillon {

/// Which rule takes a file.
struct FirstMatch {
    std::optional<std::size_t> rule; ///< index of the first rule that matches
    bool waiting = false;            ///< held back until the assistant has answered
};

/// The rules of a run, compiled, and what it takes to test files against them. Borrows all of it.
struct MatchSetup {
    const Platform& platform;
    FileJudge& judge;
    const std::vector<CompiledRule>& rules;
    const std::string& folder;
    Timestamp now;
    const RunRestraint* restraint = nullptr;
};

/// For each file the first rule that matches, in the order of the files. Uses every processor when
/// there are many files.
[[nodiscard]] std::vector<FirstMatch> firstMatches(const MatchSetup& setup,
                                                   std::span<const ListedFile* const> files);

/// For each file one bit a rule, set where the rule matches, whatever the other rules say; the
/// first rule is the lowest bit. 64 rules at most. Otherwise as firstMatches.
[[nodiscard]] std::vector<std::uint64_t> everyMatch(const MatchSetup& setup,
                                                    std::span<const ListedFile* const> files);

} // namespace quillon
