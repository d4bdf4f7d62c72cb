#include "cli/Syntax.h"
#include "cli/SyntaxParts.h"
#include "cli/Verbs.h"

namespace quillon {
namespace {

std::string parseLimit(const std::string& text, std::optional<std::size_t>& limit) {
    bool isNumber = false;
    limit = QByteArray::fromStdString(text).toUInt(&isNumber);
    return isNumber && *limit > 0 ? std::string() : "“" + text + "” is not a number of entries";
}

/// "ID=N"
std::pair<std::string, int> parseDays(const std::string& text) {
    const std::size_t sign = text.find('=');
    bool isNumber = false;
    const int days = sign == std::string::npos
                         ? 0
                         : QByteArray::fromStdString(text.substr(sign + 1)).toInt(&isNumber);
    if (!isNumber || days < 1)
        throw CLI::ValidationError(
            "--days", "“" + text + "” is not a recipe and its days, such as old-installers=30");
    return {text.substr(0, sign), days};
}

void addTimeSpan(CLI::App& parser, std::string& since, std::string& before,
                 const std::string& what) {
    parser.add_option("--since", since, what + " since then: “yesterday 18:00”, “2026-03-31”")
        ->type_name("TIME");
    parser.add_option("--before", before, what + " before then")->type_name("TIME");
}

} // namespace

Command defineRun(CLI::App& parser) {
    const auto options = std::make_shared<RunOptions>();
    parser.add_option("DIR", options->folders, "Watched folders; all of them unless given")
        ->type_name("");
    parser.add_flag("--wait", options->waits,
                    "Stay until files that still change are tidied too, and Dobbin has answered");
    addJson(parser, options->json);
    return bound<runCommand>(options);
}

Command defineCleanup(CLI::App& parser) {
    const auto options = std::make_shared<CleanupOptions>();
    addFolderArgument(parser, options->folder);
    parser
        .add_option("--recipe", options->recipes,
                    "What to clean up, see quillon recipe list; may be given again")
        ->type_name("ID")
        ->allow_extra_args(false);
    parser
        .add_option_function<std::vector<std::string>>(
            "--days",
            [options](const std::vector<std::string>& texts) {
                for (const std::string& text : texts)
                    options->days.push_back(parseDays(text));
            },
            "How old files must be for a recipe; may be given again")
        ->type_name("ID=N")
        ->allow_extra_args(false);
    parser.add_flag("--dry-run", options->isDryRun, "Show what it would do, and change nothing");
    parser.add_flag("--keep", options->keeps,
                    "Also make permanent rules of the recipes, for a watched folder");
    addJson(parser, options->json);
    return bound<cleanupCommand>(options);
}

Command defineLog(CLI::App& parser) {
    const auto options = std::make_shared<LogOptions>();
    addFolderOption(parser, options->folder, "Only what was done in this watched folder");
    parser.add_flag("--errors", options->errorsOnly, "Only what went wrong");
    addTimeSpan(parser, options->since, options->before, "Only what was done");
    addParsed(parser, "--limit", options->limit, parseLimit, "At most N entries, the newest")
        ->type_name("N");
    addJson(parser, options->json);
    return bound<logCommand>(options);
}

Command defineUndo(CLI::App& parser) {
    const auto options = std::make_shared<UndoOptions>();
    parser.add_option("ENTRY", options->entry, "An entry's id, or its first 4 characters or more")
        ->type_name("");
    parser.add_option("--batch", options->batch, "Everything that one run did")->type_name("ID");
    parser.add_flag("--last", options->last, "The newest entry that can be undone");
    addTimeSpan(parser, options->since, options->before, "Everything done");
    addJson(parser, options->json);
    parser.callback([&parser, options] {
        const bool hasSpan = parser.count("--since") + parser.count("--before") > 0;
        const std::size_t given = parser.count("ENTRY") + parser.count("--batch") +
                                  std::size_t(options->last) + std::size_t(hasSpan);
        if (given != 1)
            throw CLI::ValidationError("Give one of ENTRY, --batch ID, --last and --since TIME");
    });
    return bound<undoCommand>(options);
}

} // namespace quillon
