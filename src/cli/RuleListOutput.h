#pragma once

#include "model/Rule.h"
#include "service/Console.h"

#include <vector>

namespace quillon {

/// A folder's rules, numbered, in words and with their warnings.
void listRules(const std::vector<Rule>& rules, bool json, const Console& console);

} // namespace quillon
