#pragma once

#include <QString>

namespace quillon {

/// What a file with that name is shown as: "pdf", "image", "other". By the name alone, for what is
/// no longer or not yet there to be looked at.
[[nodiscard]] QString fileKindWord(const QString& fileName);

} // namespace quillon
