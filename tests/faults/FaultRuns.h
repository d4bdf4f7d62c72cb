#pragma once

#include "faults/Promise.h"
#include "faults/Scenario.h"
#include "support/SyscallTracer.h"

#include <string>
#include <vector>

namespace quillon::testing {

/// What a series of runs of one scenario found.
struct Findings {
    std::size_t points = 0;            ///< runs, each with its own fault
    std::vector<std::string> breaches; ///< "killed at #12 renameat2: ..."
};

/// Whatever the process was doing in user space, it can only be seen between system calls: so it is
/// killed once before each of them.
[[nodiscard]] Findings killAtEachCall(const Scenario& scenario);

/// Every call fails once with each error that it can give.
[[nodiscard]] Findings failEachCall(const Scenario& scenario);

/// From each call on, all that can fail so do: a full device, a dead one.
[[nodiscard]] Findings failFromEachCallOn(const Scenario& scenario);

/// Before each call another program does something to the same files.
[[nodiscard]] Findings interfereAtEachCall(const Scenario& scenario);

/// The undisturbed run: its breaches, and a sentence for each claim that failed.
[[nodiscard]] Findings runUndisturbed(const Scenario& scenario);

/// The system calls of an undisturbed run.
[[nodiscard]] std::vector<SyscallStop> callsOf(const Scenario& scenario);

} // namespace quillon::testing
