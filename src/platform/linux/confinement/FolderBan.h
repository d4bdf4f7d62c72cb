#pragma once

#include "platform/Error.h"

namespace quillon {

/// Forbids this process to open, make, remove or run anything on disk, where the kernel has
/// Landlock; elsewhere it does nothing and succeeds, and the filter of system calls stands alone.
[[nodiscard]] Expected<void> banFolders();

} // namespace quillon
