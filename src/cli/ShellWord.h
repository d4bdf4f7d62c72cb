#pragma once

#include <QString>

namespace quillon {

/// A path as it can be typed after a command: quoted when a shell would take it apart.
[[nodiscard]] QString shellWord(const QString& path);

} // namespace quillon
