#include "model/NearestWord.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quillon {
namespace {

/// ASCII letters alone.
std::string inLowerCase(std::string_view text) {
    std::string lower(text);
    for (char& c : lower)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return lower;
}

} // namespace

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
    const std::string wanted = inLowerCase(word);
    // A word that is only cut short is nearer than one that happens to be as short.
    return *std::ranges::min_element(words, {}, [&](const std::string& each) {
        const std::string candidate = inLowerCase(each);
        return std::pair(!candidate.starts_with(wanted), changedLetters(wanted, candidate));
    });
}

} // namespace quillon
