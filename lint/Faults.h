#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace quillon {

struct Lower_case { // readability-identifier-naming
    virtual ~Lower_case() = default;
    virtual void run();
};

struct Override : Lower_case {
    void run(); // modernize-use-override
};

template <typename T>
struct Holder {
    T items;
    double half(T whole) const {
        return whole / 2; // bugprone-integer-division
    }
};

} // namespace quillon

template <typename T>
struct std::hash<quillon::Holder<T>> {
    std::size_t operator()(const quillon::Holder<T>& holder) const {
        std::size_t sum = 0;
        for (const auto each : holder.items) { // performance-for-range-copy
            sum += each.size();
        }
        return sum;
    }
};
