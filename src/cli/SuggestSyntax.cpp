#include "cli/Syntax.h"
#include "cli/SyntaxParts.h"
#include "cli/Verbs.h"

namespace quillon {
Command defineSuggest(CLI::App& parser) {
    const auto options = std::make_shared<SuggestOptions>();
    addFolderArgument(parser, options->folder);
    CLI::Option* const add =
        parser
            .add_option("--add", options->add,
                        "Add a suggestion that was shown, by its id or number, and tidy the folder")
            ->type_name("ID");
    parser.add_option("--dismiss", options->dismiss, "Never suggest it for this folder again")
        ->type_name("ID")
        ->excludes(add);
    parser
        .add_flag("--anyway", options->isAgreed,
                  "Add it though it takes more files than undo reaches")
        ->needs(add);
    addJson(parser, options->json);
    return bound<suggestCommand>(options);
}

} // namespace quillon
