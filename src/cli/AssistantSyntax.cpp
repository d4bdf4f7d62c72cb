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

} // namespace quillon
