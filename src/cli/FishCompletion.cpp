#include "cli/Completions.h"
#include "cli/SyntaxOutline.h"

namespace quillon {
namespace {

std::string inQuotes(std::string_view text) {
    std::string result = "'";
    for (const char c : text) {
        if (c == '\'' || c == '\\')
            result += '\\';
        result += c;
    }
    return result + '\'';
}

/// The condition that these words are on the line: "folder add".
std::string seen(const std::string& words) {
    std::string condition;
    for (const std::string& word : CLI::detail::split(words, ' '))
        condition += (condition.empty() ? "" : "; and ") + ("__fish_seen_subcommand_from " + word);
    return condition;
}

std::string line(const std::string& condition, const std::string& rest) {
    return "complete -c quillon -n " + inQuotes(condition) + ' ' + rest + '\n';
}

std::string fishOffer(const ValueOutline& value) {
    if (value.isFolder)
        return " -x -a '(__fish_complete_directories)'";
    if (value.isFile)
        return " -r -F";
    return " -x" + (value.words.empty() ? std::string()
                                        : " -a " + inQuotes(CLI::detail::join(value.words, " ")));
}

std::string verbLines(const std::string& noun) {
    std::string text;
    const std::vector<std::string> words = wordsBelow(noun);
    const std::string condition =
        noun.empty()
            ? "__fish_use_subcommand"
            : seen(noun) + "; and not __fish_seen_subcommand_from " + CLI::detail::join(words, " ");
    for (const std::string& word : words)
        text += line(condition,
                     "-a " + word + " -d " +
                         inQuotes(findVerb(noun.empty() ? word : noun + ' ' + word)->description));
    return text;
}

} // namespace

std::string fishCompletion() {
    std::string text = "# fish completion for quillon: quillon completions fish | source\n"
                       "complete -c quillon -f\n" +
                       verbLines({});
    for (const Verb& verb : verbTable())
        if (isNoun(verb.name))
            text += verbLines(std::string(verb.name));
    for (const VerbOutline& outline : outlines()) {
        const std::string condition = seen(std::string(outline.verb->name));
        for (const OptionOutline& option : outline.options)
            text += line(condition, "-l " + option.name.substr(2) +
                                        (option.value.name.empty() ? "" : fishOffer(option.value)) +
                                        " -d " + inQuotes(option.description));
        if (!outline.arguments.empty() &&
            (outline.arguments[0].isFolder || outline.arguments[0].isFile ||
             !outline.arguments[0].words.empty()))
            text += line(condition, fishOffer(outline.arguments[0]).substr(1));
    }
    return text;
}

} // namespace quillon
