#pragma once

#include "cli/VerbTable.h"

#include <string>
#include <vector>

namespace quillon {

/// What may stand in a place of the command line.
struct ValueOutline {
    std::string name;                    ///< "DIR"; empty for a flag's, which takes none
    std::vector<std::string> words = {}; ///< the only ones that may stand there, if not empty
    bool isFolder = false;
    bool isFile = false;
    bool isMany = false;
    bool isRequired = false;
};

struct OptionOutline {
    std::string name; ///< "--json"
    std::string description;
    ValueOutline value;
};

/// One verb as its parser defines it, for completions and manual pages.
struct VerbOutline {
    const Verb* verb;
    std::vector<OptionOutline> options;
    std::vector<ValueOutline> arguments;
    std::vector<std::string> argumentDescriptions; ///< one an argument
};

[[nodiscard]] VerbOutline outlineOf(const Verb& verb);

/// Every verb that does something, in the order of the help; nouns are left out.
[[nodiscard]] std::vector<VerbOutline> outlines();

[[nodiscard]] bool isNoun(std::string_view name);

} // namespace quillon
