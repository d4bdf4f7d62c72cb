#pragma once

#include <QStringList>

#include <utility>
#include <vector>

namespace quillon {

/// Takes one element out and puts it where it is then the one at `to`.
template <typename T>
void moveElement(std::vector<T>& list, int from, int to) {
    T element = std::move(list[std::size_t(from)]);
    list.erase(list.begin() + from);
    list.insert(list.begin() + to, std::move(element));
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
