#include "cli/VerbTable.h"

#include "cli/Verbs.h"

#include <cmath>

namespace quillon {
namespace {

constexpr double longestSettle = 366.0 * 86400;

std::string parseSettle(const std::string& text, double& seconds) {
    bool isNumber = false;
    seconds = QByteArray::fromStdString(text).toDouble(&isNumber);
    if (!isNumber || !std::isfinite(seconds) || seconds < 0 || seconds > longestSettle)
        return "“" + text + "” is not a time in seconds from 0 to a year";
    return {};
}

std::string parseLimit(const std::string& text, std::optional<std::size_t>& limit) {
    bool isNumber = false;
    limit = QByteArray::fromStdString(text).toUInt(&isNumber);
    return isNumber && *limit > 0 ? std::string() : "“" + text + "” is not a number of entries";
}

/// An option whose text is turned into a value by a function that returns what is wrong with it.
template <typename T>
void addParsed(CLI::App& parser, const std::string& name, T& value,
               std::string (*parse)(const std::string&, T&), const std::string& description) {
    parser.add_option_function<std::string>(
        name,
        [name, &value, parse](const std::string& text) {
            if (const std::string problem = parse(text, value); !problem.empty())
                throw CLI::ValidationError(name, problem);
        },
        description);
}

void addJson(CLI::App& parser, bool& json) {
    parser.add_flag("--json", json, "Print JSON instead of text");
}

template <ExitCode (*run)(const FolderOptions&, const Console&, Services&)>
Command defineFolderVerb(CLI::App& parser) {
    const auto options = std::make_shared<FolderOptions>();
    parser.add_option("DIR", options->folder, "The folder")->required()->type_name("");
    parser.add_option("--rules", options->rules, "A rule file, or - for standard input")
        ->required()
        ->type_name("RULES");
    parser.add_flag("--recursive", options->isRecursive, "Also look at files in subfolders");
    parser.add_flag("--skip-online-only", options->skipOnlineOnly,
                    "Leave files alone that are only in cloud storage");
    addParsed(parser, "--settle", options->settleSeconds, parseSettle,
              "Leave files alone that changed less than SECONDS ago (3 unless given)");
    parser.get_option("--settle")->type_name("SECONDS");
    addJson(parser, options->json);
    return [options](const Console& console, Services& services) {
        return run(*options, console, services);
    };
}

Command defineCheck(CLI::App& parser) {
    const auto options = std::make_shared<CheckOptions>();
    parser.add_option("RULES", options->rules, "A rule file, or - for standard input")
        ->required()
        ->type_name("");
    addJson(parser, options->json);
    return [options](const Console& console, Services& services) {
        return checkCommand(*options, console, services);
    };
}

Command defineLog(CLI::App& parser) {
    const auto options = std::make_shared<LogOptions>();
    parser.add_flag("--errors", options->errorsOnly, "Only what went wrong");
    addParsed(parser, "--limit", options->limit, parseLimit, "At most N entries, the newest");
    parser.get_option("--limit")->type_name("N");
    addJson(parser, options->json);
    return [options](const Console& console, Services& services) {
        return logCommand(*options, console, services);
    };
}

Command defineUndo(CLI::App& parser) {
    const auto options = std::make_shared<UndoOptions>();
    parser.add_option("ENTRY", options->entry, "An entry's id, or its first 4 characters or more")
        ->type_name("");
    parser.add_option("--batch", options->batch, "Everything that one run did")->type_name("ID");
    parser.add_flag("--last", options->last, "The newest entry that can be undone");
    addJson(parser, options->json);
    parser.callback([&parser, options] {
        const std::size_t given =
            parser.count("ENTRY") + parser.count("--batch") + std::size_t(options->last ? 1 : 0);
        if (given != 1)
            throw CLI::ValidationError("Give one of ENTRY, --batch ID and --last");
    });
    return [options](const Console& console, Services& services) {
        return undoCommand(*options, console, services);
    };
}

constexpr Verb verbs[] = {
    {"tidy", "Tidy a folder by the rules of a file",
     "  quillon tidy ~/Downloads --rules rules.json --recursive", defineFolderVerb<tidyCommand>},
    {"preview", "Show what tidying a folder would do, and change nothing",
     "  quillon preview ~/Downloads --rules rules.json", defineFolderVerb<previewCommand>},
    {"probe", "Show which files each rule alone would catch",
     "  quillon probe ~/Downloads --rules rules.json", defineFolderVerb<probeCommand>},
    {"check", "Say in plain words what a rule file does and what it lacks",
     "  quillon check rules.json", defineCheck},
    {"log", "Show what has been done, newest first", "  quillon log --errors --limit 20",
     defineLog},
    {"undo", "Put files back where they were", "  quillon undo --last\n  quillon undo 2C9E4B70",
     defineUndo},
};

} // namespace

std::span<const Verb> verbTable() {
    return verbs;
}

} // namespace quillon
