#pragma once

#include "service/Console.h"
#include "service/ExitCode.h"
#include "service/Services.h"

#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace quillon {

/// A verb with its options, ready to be carried out.
using Command = std::function<ExitCode(const Console&, Services&)>;

/// What the command line itself is answered with: help, the version, or what is wrong with it.
struct Answer {
    std::string text;
    ExitCode code = ExitCode::done; ///< `done` goes to standard output, anything else is an error
};

/// Understands the arguments, program name left out, and touches nothing.
[[nodiscard]] std::variant<Command, Answer>
parseCommandLine(const std::vector<std::string>& arguments);

/// Parses and carries out in this process, on a thread other than that of the event loop.
[[nodiscard]] ExitCode carryOutCommandLine(const std::vector<std::string>& arguments,
                                           const Console& console, Services& services);

/// Parses and carries out, as a whole process does, on its first thread. `folders` is asked only
/// when a verb needs them.
[[nodiscard]] ExitCode runCommandLine(const std::vector<std::string>& arguments,
                                      const Console& console,
                                      const std::function<UserFolders()>& folders);

} // namespace quillon
