#pragma once

#include "platform/UserFolders.h"

#include <functional>
#include <optional>
#include <string>

namespace quillon {

/// Looks up an environment variable.
using Environment = std::function<std::optional<std::string>(const char* name)>;

/// The variables of this process.
[[nodiscard]] std::optional<std::string> processEnvironment(const char* name);

/// The user's folders by the rules of the XDG base directories: a relative path counts as none. The
/// home folder is HOME, else the one that the system's list of users knows. A login without a
/// runtime folder uses the data folder for it. None of them need exist.
[[nodiscard]] UserFolders userFolders(const Environment& environment = processEnvironment);

} // namespace quillon
