#pragma once

#include "model/ActionType.h"

#include <QString>

namespace quillon {

/// The name of the icon of the desktop's theme that stands for an action.
[[nodiscard]] QString actionIcon(ActionType type);

} // namespace quillon
