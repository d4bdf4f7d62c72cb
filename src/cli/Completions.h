#pragma once

#include <string>

namespace quillon {

// Scripts that complete the command in a shell: verbs, options, values, folders and files.

[[nodiscard]] std::string bashCompletion();
[[nodiscard]] std::string zshCompletion();
[[nodiscard]] std::string fishCompletion();

} // namespace quillon
