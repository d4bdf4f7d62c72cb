#pragma once

#include "platform/Error.h"

#include <cstdint>

namespace quillon {

/// Copies `size` bytes from the start of one open file to another, empty one: sharing the blocks
/// where the file system can, inside the kernel where that can be, keeping holes. Fails with
/// `changed` when the source turns out to be shorter.
[[nodiscard]] Expected<void> copyContents(int from, int to, std::uint64_t size);

/// Whether the first `size` bytes of two open files are the same.
[[nodiscard]] Expected<bool> haveSameBytes(int one, int other, std::uint64_t size);

/// Writes all of it, at the file's own position. Returns 0 or an errno value.
[[nodiscard]] int writeAll(int file, const char* bytes, std::size_t size);

} // namespace quillon
