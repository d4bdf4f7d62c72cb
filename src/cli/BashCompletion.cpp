#include "cli/Completions.h"
#include "cli/SyntaxOutline.h"

namespace quillon {
namespace {

/// What the function at the end finds in `kind` and `words`.
std::string offerOf(const ValueOutline& value) {
    if (value.isFolder)
        return "kind=folder";
    if (value.isFile)
        return "kind=file";
    return "words='" + CLI::detail::join(value.words, " ") + "'";
}

std::string verbCases() {
    std::string cases;
    for (const Verb& verb : verbTable())
        if (isNoun(verb.name))
            cases += "    " + std::string(verb.name) + ") nouns='" +
                     CLI::detail::join(wordsBelow(verb.name), " ") + "' ;;\n";
    return cases;
}

std::string valueCases() {
    std::string cases;
    for (const VerbOutline& outline : outlines())
        for (const OptionOutline& option : outline.options)
            if (!option.value.name.empty())
                cases += "    '" + std::string(outline.verb->name) + ' ' + option.name + "') " +
                         offerOf(option.value) + " ;;\n";
    return cases;
}

std::string argumentCases() {
    std::string cases;
    for (const VerbOutline& outline : outlines()) {
        std::vector<std::string> options;
        for (const OptionOutline& option : outline.options)
            options.push_back(option.name);
        cases += "    '" + std::string(outline.verb->name) + "')\n        options='" +
                 CLI::detail::join(options, " ") + "'\n";
        if (!outline.arguments.empty())
            cases += "        " + offerOf(outline.arguments.front()) + '\n';
        cases += "        ;;\n";
    }
    return cases;
}

} // namespace

std::string bashCompletion() {
    return R"(# bash completion for quillon: source <(quillon completions bash)
_quillon() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}
    local verb=${COMP_WORDS[1]} nouns='' words='' kind='' options='' position=2
    if [ "$current" = = ]; then
        current=''
    elif [ "$previous" = = ]; then
        previous=${COMP_WORDS[COMP_CWORD-2]}
    fi
    case $verb in
)" + verbCases() +
           R"(    esac
    if [ -n "$nouns" ]; then
        verb="$verb ${COMP_WORDS[2]}"
        position=3
    fi
    if [ "$COMP_CWORD" -lt "$position" ]; then
        words=$nouns
        [ "$COMP_CWORD" -gt 1 ] || words=')" +
           CLI::detail::join(wordsBelow({}), " ") + R"('
        mapfile -t COMPREPLY < <(compgen -W "$words --help" -- "$current")
        return
    fi
    case "$verb $previous" in
)" + valueCases() +
           R"(    *)
    case $verb in
)" + argumentCases() +
           R"(    esac
    case $current in -*) words=$options kind='' ;; esac
    ;;
    esac
    case $kind in
    folder)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -d -- "$current")
        ;;
    file)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
        ;;
    *) mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current") ;;
    esac
}
complete -F _quillon quillon
)";
}

} // namespace quillon
