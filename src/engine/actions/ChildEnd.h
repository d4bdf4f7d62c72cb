#pragma once

#include "platform/Processes.h"

#include <QString>

#include <chrono>
#include <optional>

namespace quillon {

/// Why a child process failed; nothing when it succeeded, empty when it ended with a status other
/// than 0 and printed nothing. `timeout` is the one that the process was given.
[[nodiscard]] std::optional<QString> childFailure(const Expected<ProcessResult>& result,
                                                  std::chrono::milliseconds timeout);

} // namespace quillon
