#pragma once

#include "platform/Processes.h"

namespace quillon {

/// A child inherits nothing but the environment: no descriptors, no signal settings. One that has
/// to be ended gets SIGTERM, two seconds, and then SIGKILL, with its whole group. What a child that
/// ended by itself leaves running in the background goes on, but its error output is no longer
/// read.
class LinuxProcesses : public Processes {
public:
    [[nodiscard]] Expected<ProcessResult> run(const ProcessRequest& request) override;
};

} // namespace quillon
