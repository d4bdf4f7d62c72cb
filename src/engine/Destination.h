#pragma once

#include "platform/Error.h"
#include "platform/UserFolders.h"

#include <QString>

#include <optional>
#include <string>

namespace quillon {

/// The folder that a rule names, absolute, without ".", doubled or trailing slashes; "~" and "~/…"
/// are the user's home folder. Fails with `invalid` and a clause for people when none is set or it
/// is not absolute: nothing is ever looked up in the folder that the process happens to run in.
[[nodiscard]] Expected<std::string> destinationFolder(const std::optional<QString>& destination,
                                                      const UserFolders& folders);

} // namespace quillon
