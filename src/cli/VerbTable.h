#pragma once

#include "cli/CommandLine.h"

#include <CLI/CLI.hpp>

#include <span>

namespace quillon {

/// One verb's syntax.
struct Verb {
    const char* name;
    const char* description;
    const char* example;
    /// Adds the verb's options to its parser. The command it returns is to be called only after
    /// that parser has read them.
    Command (*define)(CLI::App& parser);
};

/// Every verb, in the order of the help.
[[nodiscard]] std::span<const Verb> verbTable();

} // namespace quillon
