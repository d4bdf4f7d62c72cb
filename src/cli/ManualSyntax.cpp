#include "cli/Completions.h"
#include "cli/Syntax.h"
#include "cli/SyntaxParts.h"
#include "cli/VerbTable.h"
#include "cli/Verbs.h"

#include <algorithm>

namespace quillon {

Command defineCompletions(CLI::App& parser) {
    const auto options = std::make_shared<CompletionsOptions>();
    addWord(
        parser, "SHELL", "a shell that is known", {"bash", "zsh", "fish"},
        [options](std::size_t shell) {
            constexpr std::string (*scripts[])() = {bashCompletion, zshCompletion, fishCompletion};
            options->script = scripts[shell];
        },
        "The shell")
        ->required();
    return bound<completionsCommand>(options);
}

Command defineManual(CLI::App& parser) {
    const auto options = std::make_shared<ManualOptions>();
    parser
        .add_option_function<std::string>(
            "COMMAND",
            [options](const std::string& word) {
                const std::vector<std::string> words = wordsBelow({});
                if (std::ranges::find(words, word) == words.end())
                    throw CLI::ValidationError(notAmong(word, "a command", words));
                options->verb = word;
            },
            "The command that the page is about; quillon itself unless given")
        ->type_name("");
    parser.add_flag("--list", options->listsPages, "List the names of the pages instead");
    return bound<manualCommand>(options);
}

} // namespace quillon
