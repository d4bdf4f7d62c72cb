#pragma once

#include "platform/Archives.h"
#include "platform/Error.h"

#include <string>

namespace quillon {

struct TreeSize {
    std::uint64_t entries = 0;
    std::uint64_t bytes = 0;

    bool operator==(const TreeSize&) const = default;
    [[nodiscard]] bool isWithin(const UnpackLimits& limits) const {
        return entries <= limits.entries && bytes <= limits.bytes;
    }
};

/// How much there is below a folder so far, links not followed. Counts what it can read, no further
/// than the limits.
[[nodiscard]] TreeSize measureTree(int folder, const std::string& root, const UnpackLimits& limits);

/// Makes a freshly unpacked folder safe to hand over: its owner can read everything and change its
/// folders, nothing runs with another's rights. Fails with `invalid` when it holds a device, a
/// pipe, or a link that leads out of it.
[[nodiscard]] Expected<void> makeSafe(int folder, const std::string& root);

/// Too much for the limits, said for people.
[[nodiscard]] std::unexpected<Error> exceedsLimits();

} // namespace quillon
