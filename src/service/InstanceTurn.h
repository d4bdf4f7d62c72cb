#pragma once

#include "service/Services.h"

#include <optional>

namespace quillon {

/// Waits until the process has ended, and after that until no other one is the instance; without
/// waking in between. False when this process was asked to end before. On a command's thread.
[[nodiscard]] bool waitForTurn(Services& services, std::optional<int> process = {});

} // namespace quillon
