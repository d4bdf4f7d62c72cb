#pragma once

#include "cli/CommandLine.h"

#include <CLI/CLI.hpp>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// One verb's syntax, or a noun that gathers the verbs whose names begin with it.
struct Verb {
    std::string_view name; ///< "tidy", or two words: "folder add"
    const char* description;
    const char* example = "";
    /// Adds the verb's options to its parser. The command it returns is to be called only after
    /// that parser has read them. Null for a noun.
    ///
    /// An option's type name says what may stand there, for help and for completion: "DIR" a
    /// folder, "FILE" or "RULES" a file, "on|off" one of these; so do the names of arguments.
    Command (*define)(CLI::App& parser) = nullptr;
    bool standsAlone = false; ///< never carried out by a running instance
};

/// Every verb, in the order of the help; a noun stands before its verbs.
[[nodiscard]] std::span<const Verb> verbTable();

/// Nothing when there is none.
[[nodiscard]] const Verb* findVerb(std::string_view name);

/// The last words of the names below a noun: "add", "list". For "" those of the whole command.
[[nodiscard]] std::vector<std::string> wordsBelow(std::string_view noun);

/// Gives a parser the looks of our help.
void styleHelp(CLI::App& app);

/// The parser that a verb's syntax is defined with, its help included.
struct VerbParser {
    explicit VerbParser(const Verb& verb);

    CLI::App app;
    Command command;
};

} // namespace quillon
