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

/// Puts one element before the one that is at `row` now, or behind the last; false when that is
/// where it is already, or nowhere.
template <typename T>
bool moveElementBefore(std::vector<T>& list, int from, int row) {
    const int to = row > from ? row - 1 : row;
    if (to < 0 || to >= int(list.size()) || to == from)
        return false;
    moveElement(list, from, to);
    return true;
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
