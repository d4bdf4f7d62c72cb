#pragma once

#include <string>
#include <vector>

namespace quillon::bench {

/// What one run of a program took.
struct ChildRun {
    double milliseconds = 0; ///< from before the start to the end, by the wall clock
    long peakKilobytes = 0;
    int exitCode = -1; ///< 128 and more: ended by a signal; -1: could not be started
};

/// Runs a program with its output thrown away and waits for it.
[[nodiscard]] ChildRun runChild(const std::vector<std::string>& command);

} // namespace quillon::bench
