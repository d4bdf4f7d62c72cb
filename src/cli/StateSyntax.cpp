#include "cli/Syntax.h"
#include "cli/SyntaxParts.h"
#include "cli/Verbs.h"

namespace quillon {
namespace {

void addKey(CLI::App& parser, std::string& key) {
    parser.add_option("KEY", key, "A setting, see quillon settings list")
        ->required()
        ->type_name("");
}

} // namespace

Command defineAgent(CLI::App& parser) {
    const auto options = std::make_shared<AgentOptions>();
    parser.add_flag("--wait", options->wait,
                    "Where Quillon is running already, wait until that has ended");
    return bound<agentCommand>(options);
}

Command definePause(CLI::App& /*parser*/) {
    return pauseCommand;
}

Command defineResume(CLI::App& /*parser*/) {
    return resumeCommand;
}

Command defineStatus(CLI::App& parser) {
    const auto options = std::make_shared<StatusOptions>();
    addJson(parser, options->json);
    return bound<statusCommand>(options);
}

Command defineDiagnostics(CLI::App& parser) {
    const auto options = std::make_shared<DiagnosticsOptions>();
    parser.add_option("--output", options->output, "Write it to a file")->type_name("FILE");
    return bound<diagnosticsCommand>(options);
}

Command defineSettingsList(CLI::App& parser) {
    const auto options = std::make_shared<SettingsOptions>();
    addJson(parser, options->json);
    return bound<settingsListCommand>(options);
}

Command defineSettingsGet(CLI::App& parser) {
    const auto options = std::make_shared<SettingsOptions>();
    addKey(parser, options->key);
    addJson(parser, options->json);
    return bound<settingsGetCommand>(options);
}

Command defineSettingsSet(CLI::App& parser) {
    const auto options = std::make_shared<SettingsOptions>();
    addKey(parser, options->key);
    parser.add_option("VALUE", options->value, "Its new value")->required()->type_name("");
    return bound<settingsSetCommand>(options);
}

} // namespace quillon
