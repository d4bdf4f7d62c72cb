#pragma once

#include "platform/Error.h"

#include <cstdint>
#include <string>

namespace quillon {

struct UnpackLimits {
    std::uint64_t entries = 200'000;
    std::uint64_t bytes = 64ULL << 30;
};

/// Where an archive's contents are.
struct Unpacked {
    std::string folder;
    bool done = true; ///< false when they were there already
};

/// Archives of any common format. Any thread; blocks.
class Archives {
public:
    virtual ~Archives() = default;

    /// Unpacks into a private folder, refuses what could reach outside of it (links that leave it,
    /// devices) or exceeds the limits, and publishes the whole as `wantedFolder` or a numbered name
    /// beside it. `done` is false, with the folder found, when `wantedFolder` or a numbered one
    /// that stands before the first free name already holds the same names, contents and link
    /// targets. On failure nothing is left behind and the archive is untouched. An archive with
    /// nothing in it fails with `invalid` and an empty message, and so does one that the unpacker
    /// refuses without a word.
    [[nodiscard]] virtual Expected<Unpacked> unpack(const std::string& archive,
                                                    const std::string& wantedFolder,
                                                    const UnpackLimits& limits) = 0;
};

} // namespace quillon
