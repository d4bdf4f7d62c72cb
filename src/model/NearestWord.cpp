#include "model/NearestWord.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quillon {

std::size_t changedLetters(std::string_view one, std::string_view other) {
    std::vector<std::size_t> row(other.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (std::size_t i = 0; i < one.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < other.size(); ++j) {
            const std::size_t replaced = diagonal + (one[i] == other[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({row[j] + 1, row[j + 1] + 1, replaced});
        }
    }
    return row.back();
}

std::string nearestWord(std::string_view word, const std::vector<std::string>& words) {
    // A word that is only cut short is nearer than one that happens to be as short.
    return *std::ranges::min_element(words, {}, [&](const std::string& candidate) {
        return std::pair(!candidate.starts_with(word), changedLetters(word, candidate));
    });
}

} // namespace quillon
