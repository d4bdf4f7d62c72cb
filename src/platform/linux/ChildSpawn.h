#pragma once

#include "platform/Processes.h"
#include "platform/linux/Descriptor.h"

#include <sys/types.h>

namespace quillon {

struct SpawnedChild {
    pid_t pid = 0;          ///< leads a process group of the same number
    Descriptor errorOutput; ///< the reading end of its standard error, never blocking
};

/// Starts the child and doesn't wait for it. The caller must.
[[nodiscard]] Expected<SpawnedChild> spawnChild(const ProcessRequest& request);

} // namespace quillon
