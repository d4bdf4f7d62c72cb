#pragma once

#include <QString>

namespace quillon {

/// The name of a file for a line that is read from its start to its end: what would break the line
/// or turn the letters of an extension around is shown as a sign.
[[nodiscard]] QString shownName(QString name);

} // namespace quillon
