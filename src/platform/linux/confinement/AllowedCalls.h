#pragma once

#include "platform/Error.h"

namespace quillon {

/// From then on every system call fails with EPERM but those that reading an open file, computing
/// and printing need. Never to be taken back.
[[nodiscard]] Expected<void> allowReadingCallsOnly();

} // namespace quillon
