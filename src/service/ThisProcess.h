#pragma once

#include "platform/UserFolders.h"

#include <optional>
#include <string>

namespace quillon {

struct TerminalUse {
    bool output = false; ///< standard output is a terminal
    bool error = false;  ///< standard error is one
};

/// To be called first thing in main: makes sure that the three standard streams are open.
[[nodiscard]] TerminalUse openTerminal();

[[nodiscard]] UserFolders currentUserFolders();

[[nodiscard]] std::optional<std::string> environmentVariable(const char* name);

} // namespace quillon
