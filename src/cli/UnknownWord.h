#pragma once

#include "cli/Refusal.h"

#include <string>
#include <vector>

namespace quillon {

/// "“screen-shots” is not a recipe; the nearest is “screenshots”". There must be words.
[[nodiscard]] std::unexpected<Refusal> unknownWord(const std::string& given,
                                                   const std::string& noun,
                                                   const std::vector<std::string>& words);

} // namespace quillon
