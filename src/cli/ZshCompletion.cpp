#include "cli/Completions.h"
#include "cli/SyntaxOutline.h"

namespace quillon {
namespace {

/// Text for a place between single quotes where colons and brackets mean something.
std::string escaped(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '\'')
            result += "'\\''";
        else if (c == ':' || c == '[' || c == ']' || c == '\\')
            result += std::string("\\") + c;
        else
            result += c;
    }
    return result;
}

std::string offerOf(const ValueOutline& value) {
    if (value.isFolder)
        return "_files -/";
    if (value.isFile)
        return "_files";
    return value.words.empty() ? " " : '(' + CLI::detail::join(value.words, " ") + ')';
}

std::string described(std::string_view noun) {
    std::string list;
    for (const std::string& word : wordsBelow(noun)) {
        const std::string name = noun.empty() ? word : std::string(noun) + ' ' + word;
        list += " '" + word + ':' + escaped(findVerb(name)->description) + '\'';
    }
    return "local -a verbs=(" + list + " ); _describe command verbs; return";
}

std::string argumentsOf(const VerbOutline& outline) {
    std::string text = "    '" + std::string(outline.verb->name) + "') _arguments";
    for (const OptionOutline& option : outline.options) {
        text += " \\\n        '";
        text += (option.value.isMany ? "*" : "") + option.name + '[' + escaped(option.description) +
                ']';
        if (!option.value.name.empty())
            text += ':' + option.name.substr(2) + ':' + offerOf(option.value);
        text += '\'';
    }
    for (const ValueOutline& argument : outline.arguments)
        text += std::string(" \\\n        '") + (argument.isMany ? "*:" : ":") +
                escaped(argument.words.empty() ? argument.name : "value") + ':' +
                offerOf(argument) + '\'';
    return text + " ;;\n";
}

} // namespace

std::string zshCompletion() {
    std::string nouns;
    for (const Verb& verb : verbTable())
        if (isNoun(verb.name))
            nouns += "    " + std::string(verb.name) + ")\n        if (( CURRENT == 3 )); then " +
                     described(verb.name) +
                     "; fi\n        verb=\"$verb $words[3]\"; shift words; (( CURRENT-- )) ;;\n";
    std::string verbs;
    for (const VerbOutline& outline : outlines())
        verbs += argumentsOf(outline);
    return "#compdef quillon\n# zsh completion for quillon: source <(quillon completions zsh)\n"
           "_quillon() {\n    if (( CURRENT == 2 )); then " +
           described({}) + "; fi\n    local verb=$words[2]\n    case $verb in\n" + nouns +
           "    esac\n    shift words; (( CURRENT-- ))\n    case $verb in\n" + verbs +
           "    esac\n}\nif [ \"$funcstack[1]\" = _quillon ]; then\n    _quillon \"$@\"\nelse\n"
           "    compdef _quillon quillon\nfi\n";
}

} // namespace quillon
