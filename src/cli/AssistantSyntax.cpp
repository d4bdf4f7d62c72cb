#include "cli/Syntax.h"
#include "cli/SyntaxParts.h"
#include "cli/Verbs.h"

namespace quillon {

Command defineKeySet(CLI::App& /*parser*/) {
    return keySetCommand;
}

Command defineKeyRemove(CLI::App& /*parser*/) {
    return keyRemoveCommand;
}

Command defineKeyStatus(CLI::App& parser) {
    const auto options = std::make_shared<PlainOptions>();
    addJson(parser, options->json);
    return bound<keyStatusCommand>(options);
}

Command defineModelStatus(CLI::App& parser) {
    const auto options = std::make_shared<PlainOptions>();
    addJson(parser, options->json);
    return bound<modelStatusCommand>(options);
}

Command defineModelPull(CLI::App& parser) {
    const auto options = std::make_shared<ModelOptions>();
    parser.add_option("NAME", options->name, "The model; a small one unless given")->type_name("");
    return bound<modelPullCommand>(options);
}

Command defineModelUse(CLI::App& parser) {
    const auto options = std::make_shared<ModelOptions>();
    parser.add_option("NAME", options->name, "An installed model, see quillon model status")
        ->required()
        ->type_name("");
    return bound<modelUseCommand>(options);
}

Command defineAsk(CLI::App& parser) {
    const auto options = std::make_shared<AskOptions>();
    const auto words = std::make_shared<std::vector<std::string>>();
    parser.add_option("QUESTION", *words, "What to ask, in your own words")->type_name("");
    addNumber(parser, "--do", options->number, "a change",
              "Carry out change N of an answer, the last one unless --answer is given");
    parser.add_option("--answer", options->answer, "The answer that offers it, as it was shown")
        ->type_name("ID");
    addJson(parser, options->json);
    parser.callback([options, words] {
        options->question = CLI::detail::join(*words, " ");
        const QString question = QString::fromStdString(options->question).trimmed();
        if (words->empty() != options->number.has_value() ||
            (question.isEmpty() && !words->empty()))
            throw CLI::ValidationError("Give either a question or --do N");
        if (options->answer && !options->number)
            throw CLI::ValidationError("--answer goes with --do N");
        if (question.size() > longestSentence)
            throw CLI::ValidationError("The question is too long; ask it in fewer words");
    });
    return bound<askCommand>(options);
}

} // namespace quillon
