#pragma once

#include "engine/Actions.h"

#include <QString>

namespace quillon {

/// What people call the folder that a move or copy names; "(no folder set)" when it names none.
[[nodiscard]] QString destinationName(const RuleAction& action, const ActionContext& context);

} // namespace quillon
