#pragma once

#include <QString>

namespace quillon {

// Names and texts of others as a prompt shows them: on one line, without what can't be seen, and
// cut with "…" when long, so that none of them can write a line of its own. Lengths are bytes of
// UTF-8.

[[nodiscard]] QString promptLine(const QString& text, qsizetype most);

/// The name of a folder or a rule, at most 120 bytes.
[[nodiscard]] QString promptName(const QString& name);

/// The name of a file, at most 180 bytes.
[[nodiscard]] QString promptFileName(const QString& name);

} // namespace quillon
