#pragma once

#include <optional>
#include <string>

namespace quillon {

/// Whether standard input is a terminal.
[[nodiscard]] bool inputIsTerminal();

/// Asks on standard error, and reads one line of the terminal at standard input without showing
/// what is typed; nothing at the end of the input, or when this process is asked to end before. The
/// terminal is left as it was. To be called while nobody else reads the standard input.
[[nodiscard]] std::optional<std::string> readHiddenLine(const std::string& question);

} // namespace quillon
