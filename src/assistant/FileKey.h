#pragma once

#include "platform/Clock.h"

#include <compare>
#include <cstdint>
#include <string>

namespace quillon {

/// One version of one file: when the file changes, what was said about it no longer applies. A
/// folder has one version.
struct FileKey {
    std::string path; ///< bytes
    std::uint64_t size = 0;
    Timestamp modified = {};

    auto operator<=>(const FileKey&) const = default;
};

} // namespace quillon
