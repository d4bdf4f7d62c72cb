#pragma once

#include <QtGlobal>

namespace quillon {

/// How many characters of an id are shown, and the fewest by which one is found.
inline constexpr qsizetype shownIDLength = 8;
inline constexpr qsizetype shortestIDPrefix = 4;

} // namespace quillon
