#include "cli/Syntax.h"
#include "cli/SyntaxParts.h"
#include "cli/Verbs.h"

namespace quillon {
namespace {

std::string parseNumber(const std::string& text, std::optional<int>& number) {
    bool isNumber = false;
    number = QByteArray::fromStdString(text).toInt(&isNumber);
    return isNumber ? std::string() : "“" + text + "” is not a whole number";
}

void addFolder(CLI::App& parser, std::string& folder) {
    addFolderOption(parser, folder, "The watched folder")->required();
}

constexpr const char* ruleDescription =
    "A rule's name, its number in the list, or the beginning of its id";

std::shared_ptr<RuleOptions> defineFolderAndRules(CLI::App& parser) {
    const auto options = std::make_shared<RuleOptions>();
    parser.add_option("RULE", options->rules, ruleDescription)->required()->type_name("");
    addFolder(parser, options->folder);
    return options;
}

} // namespace

Command defineRuleList(CLI::App& parser) {
    const auto options = std::make_shared<RuleOptions>();
    addFolder(parser, options->folder);
    addJson(parser, options->json);
    return bound<ruleListCommand>(options);
}

Command defineRuleAdd(CLI::App& parser) {
    const auto options = std::make_shared<RuleAddOptions>();
    addFolder(parser, options->folder);
    parser.add_option("--name", options->name, "What the rule is called")->type_name("NAME");
    parser
        .add_option("--if", options->conditions,
                    "What a file must be: “extension is pdf”; may be given again")
        ->type_name("CONDITION")
        ->allow_extra_args(false);
    parser
        .add_option("--then", options->actions,
                    "What happens to it: “move to ~/Documents”; may be given again")
        ->type_name("ACTION")
        ->allow_extra_args(false);
    CLI::Option* const any = parser.add_flag_callback(
        "--any", [options] { options->matchMode = MatchMode::any; }, "One condition is enough");
    parser
        .add_flag_callback(
            "--none", [options] { options->matchMode = MatchMode::none; },
            "None of the conditions may hold")
        ->excludes(any);
    parser.add_flag("--off", options->isOff, "Add it switched off");
    parser.add_option("--file", options->file, "Add a rule file's rules, - for standard input")
        ->type_name("RULES");
    parser.add_option("--preset", options->preset, "Add a ready-made rule")->type_name("PRESET");
    addJson(parser, options->json);
    parser.callback([&parser, options] {
        const std::size_t ways = std::size_t(!options->file.empty()) +
                                 std::size_t(!options->preset.empty()) +
                                 std::size_t(!options->actions.empty());
        if (ways != 1)
            throw CLI::ValidationError(
                "Give one of --then ACTION, --file RULES and --preset PRESET");
        if (options->actions.empty() && parser.count("--if") + parser.count("--name") > 0)
            throw CLI::ValidationError("--name and --if belong to --then ACTION");
        if (!options->actions.empty() && options->conditions.empty())
            throw CLI::ValidationError("--then ACTION needs --if CONDITION");
    });
    return bound<ruleAddCommand>(options);
}

Command defineRuleRemove(CLI::App& parser) {
    return bound<ruleRemoveCommand>(defineFolderAndRules(parser));
}

Command defineRuleEnable(CLI::App& parser) {
    return bound<ruleEnableCommand>(defineFolderAndRules(parser));
}

Command defineRuleDisable(CLI::App& parser) {
    return bound<ruleDisableCommand>(defineFolderAndRules(parser));
}

Command defineRuleDuplicate(CLI::App& parser) {
    return bound<ruleDuplicateCommand>(defineFolderAndRules(parser));
}

Command defineRuleCopy(CLI::App& parser) {
    const auto options = std::make_shared<RuleCopyOptions>();
    parser.add_option("RULE", options->rule, ruleDescription)->required()->type_name("");
    addFolder(parser, options->folder);
    parser.add_option("--to", options->target, "The watched folder that gets a copy")
        ->required()
        ->type_name("DIR");
    addJson(parser, options->json);
    return bound<ruleCopyCommand>(options);
}

Command defineRuleMove(CLI::App& parser) {
    const auto options = std::make_shared<RuleMoveOptions>();
    parser.add_option("RULE", options->rule, ruleDescription)->required()->type_name("");
    addFolder(parser, options->folder);
    addParsed(parser, "--to", options->position, parseNumber, "Its new number in the list")
        ->type_name("N");
    parser.add_option("--before", options->before, "The rule that it comes before")
        ->type_name("RULE");
    addParsed(parser, "--by", options->offset, parseNumber, "How far down, or, below 0, up")
        ->type_name("N");
    parser.callback([&parser] {
        if (parser.count("--to") + parser.count("--before") + parser.count("--by") != 1)
            throw CLI::ValidationError("Give one of --to N, --before RULE and --by N");
    });
    return bound<ruleMoveCommand>(options);
}

Command defineRuleImport(CLI::App& parser) {
    const auto options = std::make_shared<RuleFileOptions>();
    parser.add_option("RULES", options->file, "A rule file, or - for standard input")
        ->required()
        ->type_name("");
    addFolder(parser, options->folder);
    addJson(parser, options->json);
    return bound<ruleImportCommand>(options);
}

Command defineRuleExport(CLI::App& parser) {
    const auto options = std::make_shared<RuleFileOptions>();
    options->file = "-";
    parser.add_option("FILE", options->file, "Where to; standard output unless given")
        ->type_name("");
    addFolder(parser, options->folder);
    return bound<ruleExportCommand>(options);
}

Command definePresetList(CLI::App& parser) {
    const auto options = std::make_shared<PlainOptions>();
    addJson(parser, options->json);
    return bound<presetListCommand>(options);
}

Command definePresetAdd(CLI::App& parser) {
    const auto options = std::make_shared<PresetAddOptions>();
    parser.add_option("PRESET", options->presets, "A preset's title")->required()->type_name("");
    addFolder(parser, options->folder);
    addJson(parser, options->json);
    return bound<presetAddCommand>(options);
}

Command defineRecipeList(CLI::App& parser) {
    const auto options = std::make_shared<RecipeListOptions>();
    addFolderOption(parser, options->folder, "In the order that suits this folder");
    addJson(parser, options->json);
    return bound<recipeListCommand>(options);
}

} // namespace quillon
