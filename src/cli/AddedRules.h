#pragma once

#include "cli/OpenFolder.h"
#include "cli/Refusal.h"
#include "model/Rule.h"

#include <vector>

namespace quillon {

/// Adds rules to the folder, under fresh ids, and tidies it. Prints each rule in words with what it
/// lacks, then what the run did, or, as JSON, only that.
[[nodiscard]] ExitCode addRulesAndRun(const OpenFolder& open, std::vector<Rule> rules,
                                      RuleSource source, bool json, const Console& console);

/// The ready-made rule of that title. A refusal names the nearest.
[[nodiscard]] Chosen<Rule> presetRule(const std::string& title);

} // namespace quillon
