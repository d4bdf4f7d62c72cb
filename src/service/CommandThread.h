#pragma once

#include "service/ExitCode.h"
#include "service/Services.h"

#include <functional>

namespace quillon {

/// Carries a command out on a thread of its own while this one runs the event loop that the store
/// needs, and returns once the store has finished too. A request to end this process makes what is
/// under way end after the file that it is at. To be called on the thread that made the services,
/// which must be the process's first.
[[nodiscard]] ExitCode onCommandThread(Services& services,
                                       const std::function<ExitCode()>& command);

} // namespace quillon
