// What the linter must find, each where the line says.

#include "Faults.h"

namespace quillon {
namespace {

struct Text {
    std::string text;
    int size = 0;
    bool isEmpty() const {
        return text.size() == 0; // readability-container-size-empty
    }
};

int lengthOf(std::string text) { // performance-unnecessary-value-param
    return static_cast<int>(text.size());
}

int sum(const std::vector<int>& numbers) {
    int result = 0;
    for (std::size_t i = 0; i < numbers.size(); ++i) { // modernize-loop-convert
        result += numbers[i];
    }
    return result;
}

double half(int whole) {
    return whole / 2; // bugprone-integer-division
}

std::size_t twice(std::string text) {
    const std::string taken = std::move(text);
    return taken.size() + text.size(); // bugprone-use-after-move
}

} // namespace

extern "C" void linked(Text text) { // performance-unnecessary-value-param
    static_cast<void>(lengthOf(text.text) + half(text.size) + sum({}));
    static_cast<void>(twice({}) + (Text().isEmpty() ? 1 : 2));
    static_cast<void>(Holder<int>().half(3));
    static_cast<void>(std::hash<Holder<std::vector<std::string>>>()({}));
}

} // namespace quillon
