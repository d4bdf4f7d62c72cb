#include "cli/VerbTable.h"

#include "cli/Syntax.h"

#include <algorithm>

namespace quillon {
namespace {

constexpr Verb verbs[] = {
    {"tidy", "Tidy a folder once by the rules of a file",
     "quillon tidy ~/Downloads --rules rules.json --recursive", defineTidy},
    {"preview", "Show what tidying a folder would do, and change nothing",
     "quillon preview ~/Downloads --rules rules.json", definePreview},
    {"probe", "Show which files each rule alone would catch",
     "quillon probe ~/Downloads --rules rules.json", defineProbe},
    {"check", "Say in plain words what a rule file does and what it lacks",
     "quillon check rules.json", defineCheck},

    {"folder", "The folders that are kept tidy"},
    {"folder add", "Watch folders, and tidy them", "quillon folder add ~/Downloads --timing hourly",
     defineFolderAdd},
    {"folder remove", "Watch folders no more; their files stay",
     "quillon folder remove ~/Downloads", defineFolderRemove},
    {"folder list", "Show the watched folders", "quillon folder list", defineFolderList},
    {"folder set", "Change how folders are watched",
     "quillon folder set ~/Downloads --recursive on --only-new on", defineFolderSet},

    {"rule", "The rules of a watched folder"},
    {"rule list", "Show a folder's rules in the order in which they are tried",
     "quillon rule list --folder ~/Downloads", defineRuleList},
    {"rule add", "Add a rule in words, from a file, or ready-made",
     "quillon rule add --folder ~/Downloads --name \"File PDFs\" \\\n"
     "    --if \"extension is pdf\" --then \"move to ~/Documents/PDFs\"",
     defineRuleAdd},
    {"rule remove", "Remove rules", "quillon rule remove \"File PDFs\" --folder ~/Downloads",
     defineRuleRemove},
    {"rule enable", "Switch rules on", "quillon rule enable 2 --folder ~/Downloads",
     defineRuleEnable},
    {"rule disable", "Switch rules off", "quillon rule disable \"File PDFs\" --folder ~/Downloads",
     defineRuleDisable},
    {"rule duplicate", "Add a copy of a rule below it",
     "quillon rule duplicate \"File PDFs\" --folder ~/Downloads", defineRuleDuplicate},
    {"rule copy", "Copy a rule to another watched folder",
     "quillon rule copy \"File PDFs\" --folder ~/Downloads --to ~/Desktop", defineRuleCopy},
    {"rule move", "Change when a rule's turn comes",
     "quillon rule move \"File PDFs\" --folder ~/Downloads --to 1", defineRuleMove},
    {"rule import", "Add the rules of a file",
     "quillon rule import rules.json --folder ~/Downloads", defineRuleImport},
    {"rule export", "Write a folder's rules to a file",
     "quillon rule export rules.json --folder ~/Downloads", defineRuleExport},

    {"preset", "Ready-made rules"},
    {"preset list", "Show the ready-made rules", "quillon preset list", definePresetList},
    {"preset add", "Add ready-made rules to a folder",
     "quillon preset add \"Sort by kind\" --folder ~/Downloads", definePresetAdd},
    {"recipe", "What a clean-up can do"},
    {"recipe list", "Show what a clean-up can do", "quillon recipe list", defineRecipeList},

    {"run", "Tidy watched folders now", "quillon run ~/Downloads", defineRun},
    {"cleanup", "Clean a folder up once by ready-made recipes",
     "quillon cleanup ~/Downloads --recipe old-installers --days old-installers=30 --dry-run",
     defineCleanup},
    {"log", "Show what has been done, newest first", "quillon log --errors --limit 20", defineLog},
    {"undo", "Put files back where they were", "quillon undo --last\nquillon undo 2C9E4B70",
     defineUndo},
    {"agent", "Keep the watched folders tidy until asked to stop", "quillon agent", defineAgent,
     true},
    {"pause", "Tidy nothing by itself until resumed", "quillon pause", definePause},
    {"resume", "Tidy by itself again, beginning now", "quillon resume", defineResume},
    {"status", "Show what is watched and whether all is well", "quillon status", defineStatus},
    {"diagnostics", "Write a report for support", "quillon diagnostics --output report.txt",
     defineDiagnostics},
    {"settings", "What applies to all folders"},
    {"settings list", "Show every setting", "quillon settings list", defineSettingsList},
    {"settings get", "Show a setting", "quillon settings get notificationsEnabled",
     defineSettingsGet},
    {"settings set", "Change a setting", "quillon settings set notificationsEnabled false",
     defineSettingsSet},

    {"ask", "Ask Dobbin about what was tidied, and have him change rules",
     "quillon ask \"Where did my invoice go?\"\nquillon ask --do 1", defineAsk},
    {"write-rule", "Have Dobbin write a rule from a sentence",
     "quillon write-rule ~/Downloads \"Move PDFs from amazon.com to Receipts\" --save",
     defineWriteRule},
    {"key", "Your key for Claude, kept in the desktop's keyring"},
    {"key set", "Check a key, read from standard input, and keep it", "quillon key set",
     defineKeySet},
    {"key remove", "Forget the key", "quillon key remove", defineKeyRemove},
    {"key status", "Show whether there is a key and who answers Dobbin", "quillon key status",
     defineKeyStatus},
    {"model", "The language model on this computer"},
    {"model status", "Show whether the local model is ready, and which are installed",
     "quillon model status", defineModelStatus},
    {"model pull", "Download a local model", "quillon model pull llama3.2:3b", defineModelPull},
    {"model use", "Choose the local model", "quillon model use llama3.2:3b", defineModelUse},

    {"suggest", "Suggest rules by what lies in a folder",
     "quillon suggest ~/Downloads\nquillon suggest ~/Downloads --add 1", defineSuggest},

    {"completions", "Print a script that completes this command in a shell",
     "source <(quillon completions bash)", defineCompletions},
    {"manual", "Print a manual page", "quillon manual rule | man -l -", defineManual},
};

/// A name cut before its last word.
std::string_view nounOf(std::string_view name) {
    const std::size_t space = name.rfind(' ');
    return space == std::string_view::npos ? std::string_view() : name.substr(0, space);
}

std::string indented(std::string_view lines) {
    std::string text;
    for (const std::string& line : CLI::detail::split(std::string(lines), '\n'))
        text += "\n  " + line;
    return text;
}

} // namespace

std::span<const Verb> verbTable() {
    return verbs;
}

const Verb* findVerb(std::string_view name) {
    const auto found = std::ranges::find(verbs, name, &Verb::name);
    return found == std::end(verbs) ? nullptr : found;
}

std::vector<std::string> wordsBelow(std::string_view noun) {
    std::vector<std::string> words;
    for (const Verb& verb : verbs)
        if (nounOf(verb.name) == noun)
            words.emplace_back(verb.name.substr(noun.empty() ? 0 : noun.size() + 1));
    return words;
}

void styleHelp(CLI::App& app) {
    app.set_help_flag("-h,--help", "Show this help");
    const auto formatter = std::make_shared<CLI::Formatter>();
    formatter->column_width(34);
    formatter->label("REQUIRED", "");
    formatter->label("SUBCOMMAND", "COMMAND");
    formatter->label("Positionals", "Arguments");
    app.formatter(formatter);
}

VerbParser::VerbParser(const Verb& verb)
    : app(verb.description, "quillon " + std::string(verb.name)) {
    styleHelp(app);
    if (verb.define != nullptr) {
        app.footer("Example:" + indented(verb.example));
        command = verb.define(app);
        return;
    }
    for (const std::string& word : wordsBelow(verb.name))
        app.add_subcommand(word, findVerb(std::string(verb.name) + ' ' + word)->description)
            ->group("Commands");
    app.footer("quillon " + std::string(verb.name) + " COMMAND --help shows an example of each.");
}

} // namespace quillon
