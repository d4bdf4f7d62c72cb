#pragma once

#include "cli/CommandLine.h"
#include "model/NearestWord.h"
#include "model/RawValue.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// What several verbs' options are put together from.

/// Of what is put to a model in one's own words.
inline constexpr qsizetype longestSentence = 4000;

void addJson(CLI::App& parser, bool& json);

/// The required argument DIR.
void addFolderArgument(CLI::App& parser, std::string& folder);

/// The required arguments DIR…
CLI::Option* addFolderArguments(CLI::App& parser, std::vector<std::string>& folders);

/// "--folder DIR"
CLI::Option* addFolderOption(CLI::App& parser, std::string& folder, const std::string& description);

/// An option whose text is turned into a value by a function that returns what is wrong with it.
template <typename T>
CLI::Option* addParsed(CLI::App& parser, const std::string& name, T& value,
                       std::string (*parse)(const std::string&, T&),
                       const std::string& description) {
    return parser.add_option_function<std::string>(
        name,
        [name, &value, parse](const std::string& text) {
            if (const std::string problem = parse(text, value); !problem.empty())
                throw CLI::ValidationError(name, problem);
        },
        description);
}

/// "--do N": which one of a list that was shown, from 1. `noun` is what it is one of.
CLI::Option* addNumber(CLI::App& parser, const std::string& name,
                       std::optional<std::size_t>& number, const std::string& noun,
                       const std::string& description);

/// "“evry15” is not a timing; the nearest is “every15”"
[[nodiscard]] std::string notAmong(const std::string& word, const std::string& noun,
                                   const std::vector<std::string>& words);

/// An option that takes one of a few words.
CLI::Option* addWord(CLI::App& parser, const std::string& name, const std::string& noun,
                     const std::vector<std::string>& words,
                     const std::function<void(std::size_t)>& choose,
                     const std::string& description);

/// An option that takes one of an enumeration's stored strings.
template <typename E>
CLI::Option* addChoice(CLI::App& parser, const std::string& name, std::optional<E>& value,
                       const std::string& description) {
    std::vector<std::string> words;
    for (const E each : allCases<E>())
        words.push_back(rawValue(each).toStdString());
    return addWord(
        parser, name, toQString(rawValueNoun<E>).toStdString(), words,
        [&value](std::size_t index) { value = static_cast<E>(index); }, description);
}

/// An option that takes "on" or "off".
CLI::Option* addSwitch(CLI::App& parser, const std::string& name, std::optional<bool>& value,
                       const std::string& description);

/// The verb with the options that its parser will have read.
template <auto run, typename Options>
Command bound(const std::shared_ptr<Options>& options) {
    return [options](const Console& console, Services& services) {
        return run(*options, console, services);
    };
}

} // namespace quillon
