#pragma once

#include "platform/Error.h"

#include <string>
#include <sys/types.h>

namespace quillon {

/// Makes a folder and those that lead to it, with `mode` less the umask. Succeeds when it is a
/// folder already, or leads to one as a link. When it fails midway, the folders it made are gone
/// again.
[[nodiscard]] Expected<void> makeFolderPath(const std::string& path, mode_t mode);

} // namespace quillon
