#pragma once

#include "platform/Processes.h"
#include "platform/linux/Descriptor.h"

#include <sys/types.h>

namespace quillon {

struct SpawnedChild {
    pid_t pid = 0;          ///< leads a process group of the same number
    Descriptor errorOutput; ///< the reading end of its standard error, never blocking
};

/// What a child is given. Descriptors are borrowed; where there is none it gets the null device.
struct ChildPlan {
    std::string executable; ///< absolute path
    std::vector<std::string> arguments;
    std::vector<std::string> environment; ///< all of it: "NAME=value"
    std::string workingFolder;            ///< empty: our own
    int input = -1;
    int output = -1;
    int errorOutput = -1;
};

/// Starts a child that leads a process group of its own and inherits nothing but its plan: no other
/// descriptors, no signal settings. Doesn't wait for it; the caller must.
[[nodiscard]] Expected<pid_t> startChild(const ChildPlan& plan);

/// What a child prints comes out of `readingEnd`, which never blocks.
struct Pipe {
    Descriptor readingEnd;
    Descriptor writingEnd;
};

[[nodiscard]] Expected<Pipe> openPipe();

/// Starts the child in our own environment, and doesn't wait for it either.
[[nodiscard]] Expected<SpawnedChild> spawnChild(const ProcessRequest& request);

} // namespace quillon
