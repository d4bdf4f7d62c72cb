#pragma once

#include <QString>

namespace quillon {

/// The text on one line: a control character or line break is a space, and what directs the
/// writing, can't be seen or stands for nothing (overrides, isolates, zero-width and replacement
/// characters) is left out.
[[nodiscard]] QString plainLine(const QString& text);

/// The first `most` units of the text, or one less where that would cut a character in two.
[[nodiscard]] QString cutTo(const QString& text, qsizetype most);

} // namespace quillon
