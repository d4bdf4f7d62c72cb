#pragma once

#include "faults/Report.h"
#include "faults/World.h"

#include <optional>
#include <string>
#include <vector>

namespace quillon::testing {

/// What no program could have prevented under the fault at hand.
struct Excuses {
    bool leftovers = false;      ///< a temporary could not be removed
    bool doubles = false;        ///< nor could a second name of the same file
    bool faultyClearing = false; ///< the fault may have come when all but clearing up was done
    bool lostUpdate = false; ///< somebody wrote to the file between the last look and its removal
};

/// Compares the disk with the file-safety promise: every file whole exactly once, nothing
/// overwritten, nothing half-written under a visible name, nothing said that is not so. `report` is
/// absent when the operation was killed. One sentence a breach.
[[nodiscard]] std::vector<std::string> breaches(const World& world, const DiskState& after,
                                                const std::optional<Report>& report,
                                                const Excuses& excuses = {});

/// Whether the path is, or lies in, a temporary that nobody sees.
[[nodiscard]] bool isHidden(const std::string& path);

/// The moved things to which nothing in a recovered report leads, or something that is not so.
[[nodiscard]] std::vector<std::string> forgotten(const World& world, const DiskState& after,
                                                 const Report& recovered);

} // namespace quillon::testing
