#include "cli/Syntax.h"
#include "cli/SyntaxParts.h"
#include "cli/Verbs.h"

namespace quillon {
namespace {

constexpr int lastColor = 7;

std::string parseColor(const std::string& text, std::optional<std::optional<int>>& color) {
    color.emplace();
    if (text == "none")
        return {};
    bool isNumber = false;
    *color = QByteArray::fromStdString(text).toInt(&isNumber);
    return isNumber && **color >= 0 && **color <= lastColor
               ? std::string()
               : "“" + text + "” is not a colour; there are 0 to 7, and none";
}

void addSettings(CLI::App& parser, FolderSettings& settings) {
    addChoice(parser, "--timing", settings.timing, "When it is tidied");
    addSwitch(parser, "--recursive", settings.isRecursive, "Also tidy files in subfolders");
    addSwitch(parser, "--only-new", settings.onlyNewFiles,
              "Leave files alone that are there already");
    addSwitch(parser, "--skip-online-only", settings.skipOnlineOnly,
              "Leave files alone that are only in cloud storage");
    addParsed(parser, "--color", settings.color, parseColor, "Its colour, 0 to 7, or none")
        ->type_name("N");
    parser.add_option("--symbol", settings.symbol, "The name of its symbol")->type_name("NAME");
}

} // namespace

Command defineFolderAdd(CLI::App& parser) {
    const auto options = std::make_shared<WatchedFolderOptions>();
    addFolderArguments(parser, options->folders);
    addSettings(parser, options->settings);
    addJson(parser, options->json);
    return bound<folderAddCommand>(options);
}

Command defineFolderRemove(CLI::App& parser) {
    const auto options = std::make_shared<WatchedFolderOptions>();
    addFolderArguments(parser, options->folders);
    return bound<folderRemoveCommand>(options);
}

Command defineFolderList(CLI::App& parser) {
    const auto options = std::make_shared<PlainOptions>();
    addJson(parser, options->json);
    return bound<folderListCommand>(options);
}

Command defineFolderSet(CLI::App& parser) {
    const auto options = std::make_shared<WatchedFolderOptions>();
    addFolderArguments(parser, options->folders);
    addSettings(parser, options->settings);
    addJson(parser, options->json);
    parser.callback([options] {
        if (options->settings == FolderSettings{})
            throw CLI::ValidationError("Nothing is to be changed; give an option such as --timing");
    });
    return bound<folderSetCommand>(options);
}

} // namespace quillon
