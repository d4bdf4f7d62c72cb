#pragma once

#include "cli/Refusal.h"
#include "model/Rule.h"

#include <string>
#include <vector>

namespace quillon {

/// The one of a folder's rules that is meant by a name in any case of letters, by a number from 1,
/// or by the beginning of an id. A refusal names the nearest.
[[nodiscard]] Chosen<Rule> ruleMeant(const std::string& given, const std::vector<Rule>& rules);

} // namespace quillon
