#include "cli/SyntaxOutline.h"

namespace quillon {
namespace {

ValueOutline valueOf(const CLI::Option& option, const std::string& name) {
    ValueOutline value{.name = name};
    if (name.find('|') != std::string::npos)
        value.words = CLI::detail::split(name, '|');
    value.isFolder = name == "DIR";
    value.isFile = name == "FILE" || name == "RULES";
    value.isMany = option.get_items_expected_max() > 1;
    value.isRequired = option.get_required();
    return value;
}

} // namespace

VerbOutline outlineOf(const Verb& verb) {
    VerbParser parser(verb);
    VerbOutline outline{.verb = &verb, .options = {}, .arguments = {}, .argumentDescriptions = {}};
    for (const CLI::Option* option : parser.app.get_options()) {
        const std::string type = option->get_type_name();
        if (option->get_positional()) {
            outline.arguments.push_back(
                valueOf(*option, type.empty() ? option->get_name(true) : type));
            outline.argumentDescriptions.push_back(option->get_description());
            continue;
        }
        const bool isFlag = option->get_items_expected_max() == 0;
        outline.options.push_back({.name = "--" + option->get_lnames().front(),
                                   .description = option->get_description(),
                                   .value = valueOf(*option, isFlag ? std::string() : type)});
    }
    return outline;
}

std::vector<VerbOutline> outlines() {
    std::vector<VerbOutline> all;
    for (const Verb& verb : verbTable())
        if (!isNoun(verb.name))
            all.push_back(outlineOf(verb));
    return all;
}

bool isNoun(std::string_view name) {
    const Verb* const verb = findVerb(name);
    return verb != nullptr && verb->define == nullptr;
}

} // namespace quillon
