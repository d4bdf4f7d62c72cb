#pragma once

#include "platform/Storage.h"

#include <chrono>
#include <functional>

namespace quillon {

/// How long a command waits for another one to finish with the store.
inline constexpr std::chrono::milliseconds lockPatience{2000};

/// Waits, asking again every little while; `pause` sleeps. Fails with `timedOut` and a sentence
/// when somebody else still holds the lock at the end of the patience.
[[nodiscard]] Expected<std::unique_ptr<FileLock>>
waitForStoreLock(Storage& storage, const std::string& path,
                 const std::function<void(std::chrono::milliseconds)>& pause,
                 std::chrono::milliseconds patience = lockPatience);

} // namespace quillon
