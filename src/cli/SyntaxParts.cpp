#include "cli/SyntaxParts.h"

#include <algorithm>

namespace quillon {

void addJson(CLI::App& parser, bool& json) {
    parser.add_flag("--json", json, "Print JSON instead of text");
}

void addFolderArgument(CLI::App& parser, std::string& folder) {
    parser.add_option("DIR", folder, "The folder")->required()->type_name("");
}

CLI::Option* addFolderArguments(CLI::App& parser, std::vector<std::string>& folders) {
    return parser.add_option("DIR", folders, "The folders")->required()->type_name("");
}

CLI::Option* addFolderOption(CLI::App& parser, std::string& folder,
                             const std::string& description) {
    return parser.add_option("--folder", folder, description)->type_name("DIR");
}

CLI::Option* addNumber(CLI::App& parser, const std::string& name,
                       std::optional<std::size_t>& number, const std::string& noun,
                       const std::string& description) {
    return parser
        .add_option_function<std::string>(
            name,
            [=, &number](const std::string& text) {
                bool isNumber = false;
                number = QByteArray::fromStdString(text).toUInt(&isNumber);
                if (!isNumber || *number == 0)
                    throw CLI::ValidationError(name, "“" + text + "” is not the number of " + noun);
            },
            description)
        ->type_name("N");
}

std::string notAmong(const std::string& word, const std::string& noun,
                     const std::vector<std::string>& words) {
    return "“" + word + "” is not " + noun + "; the nearest is “" + nearestWord(word, words) + "”";
}

CLI::Option* addWord(CLI::App& parser, const std::string& name, const std::string& noun,
                     const std::vector<std::string>& words,
                     const std::function<void(std::size_t)>& choose,
                     const std::string& description) {
    return parser
        .add_option_function<std::string>(
            name,
            [=](const std::string& text) {
                const auto found = std::ranges::find(words, text);
                if (found == words.end())
                    throw CLI::ValidationError(name, notAmong(text, noun, words));
                choose(std::size_t(found - words.begin()));
            },
            description)
        ->type_name(CLI::detail::join(words, "|"));
}

CLI::Option* addSwitch(CLI::App& parser, const std::string& name, std::optional<bool>& value,
                       const std::string& description) {
    return addWord(
        parser, name, "on or off", {"on", "off"},
        [&value](std::size_t index) { value = index == 0; }, description);
}

} // namespace quillon
