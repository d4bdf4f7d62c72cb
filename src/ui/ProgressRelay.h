#pragma once

#include "engine/RuleEngine.h"
#include "platform/Background.h"

namespace quillon {

/// Tells on the event loop's thread what work on another one reports, and of many reports only the
/// newest: there is one a file. Borrows the background for as long as the work goes on.
[[nodiscard]] Progress relayed(Background& background, Progress told);

} // namespace quillon
