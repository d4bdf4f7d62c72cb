#pragma once

#include "platform/Error.h"

#include <optional>
#include <string>

namespace quillon {

/// The first of the wanted name and its numbered ones in a folder that holds the same names,
/// contents and link targets as a file or tree; none when a free name comes first.
[[nodiscard]] Expected<std::optional<std::string>> findSame(int sourceFolder,
                                                            const std::string& sourceName,
                                                            int targetFolder,
                                                            const std::string& wantedName);

} // namespace quillon
