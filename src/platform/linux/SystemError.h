#pragma once

#include "platform/Error.h"

#include <cerrno>

namespace quillon {

/// What the system means by an errno value, in its own words.
[[nodiscard]] Error systemError(int code);

[[nodiscard]] std::unexpected<Error> systemFailure(int code = errno);

} // namespace quillon
