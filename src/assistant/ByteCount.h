#pragma once

#include <QString>

#include <cstdint>

namespace quillon {

/// A size as people read it, in decimal units: "1 byte", "340 KB", "1.2 MB", "2.25 GB".
[[nodiscard]] QString byteCount(std::uint64_t bytes);

} // namespace quillon
