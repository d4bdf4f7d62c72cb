#pragma once

#include "platform/linux/LinuxUserFolders.h"

#include <QString>

namespace quillon {

/// The address of the session's message bus, as the variables of the environment say. Empty when
/// there is none: left to itself, a library would start a bus of its own.
[[nodiscard]] QString sessionBusAddress(const Environment& environment);

} // namespace quillon
