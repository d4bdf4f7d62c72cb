#pragma once

#include "platform/UserFolders.h"

#include <functional>
#include <optional>
#include <string>

namespace quillon {

struct TerminalUse {
    bool output = false; ///< standard output is a terminal
    bool error = false;  ///< standard error is one
};

/// To be called first thing in main: makes sure that the three standard streams are open.
[[nodiscard]] TerminalUse openTerminal();

/// Makes this process note a request to end instead of ending at once, and returns what is false
/// from then on. To be called once, from main. A second request ends the process as usual.
[[nodiscard]] std::function<bool()> untilAskedToStop();

/// For Console::askInSecret; empty when standard input is no terminal.
[[nodiscard]] std::function<std::optional<std::string>(const std::string&)> secretFromTerminal();

/// For a process that lives on: notes every request to end, outlives whoever reads what it says,
/// and gives memory back that it is done with.
void becomeLongLived();

/// At once, for a thread may be left behind that still waits for a message bus and must not see
/// what it uses taken down. The streams have been flushed by then.
[[noreturn]] void endProcess(int code);

[[nodiscard]] UserFolders currentUserFolders();

[[nodiscard]] std::optional<std::string> environmentVariable(const char* name);

} // namespace quillon
