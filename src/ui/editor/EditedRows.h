#pragma once

#include <QStringList>

#include <algorithm>
#include <vector>

namespace quillon {

/// Takes one element out and puts it where it is then the one at `to`.
template <typename T>
void moveElement(std::vector<T>& list, int from, int to) {
    const auto first = list.begin() + std::min(from, to);
    const auto last = list.begin() + std::max(from, to) + 1;
    std::rotate(first, from < to ? first + 1 : last - 1, last);
}

/// What each of the values is called.
template <typename T, typename Text>
QStringList texts(const std::vector<T>& values, Text text) {
    QStringList result;
    for (const T& value : values)
        result.append(text(value));
    return result;
}

} // namespace quillon
