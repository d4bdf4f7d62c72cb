#include "cli/Syntax.h"
#include "cli/SyntaxParts.h"
#include "cli/Verbs.h"

namespace quillon {
namespace {

std::string parsePosition(const std::string& text, std::optional<std::size_t>& position) {
    bool isNumber = false;
    position = QByteArray::fromStdString(text).toUInt(&isNumber);
    return isNumber && *position > 0 ? std::string()
                                     : "“" + text + "” is not the number of a suggestion";
}

} // namespace

Command defineSuggest(CLI::App& parser) {
    const auto options = std::make_shared<SuggestOptions>();
    addFolderArgument(parser, options->folder);
    CLI::Option* const add =
        addParsed(parser, "--add", options->add, parsePosition,
                  "Add a suggestion, by its number when it was last shown, and tidy the folder")
            ->type_name("N");
    addParsed(parser, "--dismiss", options->dismiss, parsePosition,
              "Never suggest it for this folder again")
        ->type_name("N")
        ->excludes(add);
    addJson(parser, options->json);
    return bound<suggestCommand>(options);
}

} // namespace quillon
