#include "cli/Syntax.h"
#include "cli/SyntaxParts.h"
#include "cli/Verbs.h"

namespace quillon {

Command defineWriteRule(CLI::App& parser) {
    const auto options = std::make_shared<WriteRuleOptions>();
    const auto words = std::make_shared<std::vector<std::string>>();
    addFolderArgument(parser, options->folder);
    parser.add_option("SENTENCE", *words, "What the rule is to do, in your own words")
        ->required()
        ->type_name("");
    CLI::Option* const save =
        parser.add_flag("--save", options->saves, "Add the rule to the folder, and tidy it");
    parser.add_flag("--anyway", options->isAgreed, "Save it in spite of its warnings")->needs(save);
    addJson(parser, options->json);
    parser.callback([options, words] {
        options->sentence = CLI::detail::join(*words, " ");
        const QString sentence = QString::fromStdString(options->sentence).trimmed();
        if (sentence.isEmpty())
            throw CLI::ValidationError("SENTENCE says nothing; for example “Trash old installers”");
        if (sentence.size() > longestSentence)
            throw CLI::ValidationError("SENTENCE is too long; say it in fewer words");
    });
    return bound<writeRuleCommand>(options);
}

} // namespace quillon
