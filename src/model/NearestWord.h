#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// How many letters must be changed, added or left out to turn one text into the other.
[[nodiscard]] std::size_t changedLetters(std::string_view one, std::string_view other);

/// The one of `words`, which is not empty, that takes the fewest changed letters to become,
/// whatever the case of ASCII letters.
[[nodiscard]] std::string nearestWord(std::string_view word, const std::vector<std::string>& words);

} // namespace quillon
