#pragma once

#include "service/Instance.h"

#include <string>
#include <variant>

namespace quillon {

/// The application showed the window of a process that runs already.
struct ShownElsewhere {};

/// Becomes the one instance: calls at the one that runs, which shows its window or gives up its
/// place, and waits a while for a store that is in use. Waits, on the event loop's thread, before
/// anything is shown. The token is what the desktop gave this process for its window, or empty.
[[nodiscard]] std::variant<std::unique_ptr<Instance>, ShownElsewhere, Error>
becomeInstance(Services& services, const CommandRunner& run, const std::string& activationToken);

} // namespace quillon
