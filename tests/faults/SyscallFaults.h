#pragma once

#include "faults/Scenario.h"
#include "support/SyscallTracer.h"

#include <string>
#include <vector>

namespace quillon::testing {

[[nodiscard]] std::string syscallName(long number);

/// The errors that the call could give on a full, failing or forbidding file system; none for a
/// call that has nothing to do with files.
[[nodiscard]] std::vector<int> possibleErrors(const SyscallStop& stop);

/// Whether the call goes by a file's name, so that it matters what has that name at the moment.
[[nodiscard]] bool goesByName(long number);

/// Whether the call takes a name away.
[[nodiscard]] bool isRemoval(long number);

/// Whether the call returns once the disk has what was written.
[[nodiscard]] bool isSync(long number);

/// What the machine at hand makes of a call that no fault is about. Transfers are cut short, so
/// that there are moments at which a file is half copied, and syncing takes no time: a process that
/// is killed can't tell.
[[nodiscard]] SyscallDecision ordinarily(Machine machine, const SyscallStop& stop);

} // namespace quillon::testing
