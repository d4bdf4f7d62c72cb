#include "cli/Syntax.h"
#include "cli/SyntaxParts.h"
#include "cli/Verbs.h"

namespace quillon {
Command defineSuggest(CLI::App& parser) {
    const auto options = std::make_shared<SuggestOptions>();
    addFolderArgument(parser, options->folder);
    CLI::Option* const add =
        addNumber(parser, "--add", options->add, "a suggestion",
                  "Add a suggestion, by its number when it was last shown, and tidy the folder");
    addNumber(parser, "--dismiss", options->dismiss, "a suggestion",
              "Never suggest it for this folder again")
        ->excludes(add);
    addJson(parser, options->json);
    return bound<suggestCommand>(options);
}

} // namespace quillon
