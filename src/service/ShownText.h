#pragma once

#include <QString>

namespace quillon {

/// Text from outside, such as a file name, as it may appear on a terminal: whatever would move the
/// cursor, change colours or reorder the line is written as an escape ("\n", "\x1b", "\u202e").
[[nodiscard]] QString shownText(const QString& text);

/// How many columns the text takes: combining marks none, East Asian wide characters two.
[[nodiscard]] qsizetype shownWidth(QStringView text);

} // namespace quillon
