#pragma once

#include <string>
#include <vector>

namespace quillon {

/// "quillon", "quillon-folder": one page for the command and one for each of its verbs and nouns.
[[nodiscard]] std::vector<std::string> manualPageNames();

/// The page of the whole command, or of a verb or noun of the help, for man(1). Plain ASCII.
[[nodiscard]] std::string manualPage(const std::string& verb);

} // namespace quillon
