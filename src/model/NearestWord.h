#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// The one of `words`, which is not empty, that takes the fewest changed letters to become.
[[nodiscard]] std::string nearestWord(std::string_view word, const std::vector<std::string>& words);

} // namespace quillon
