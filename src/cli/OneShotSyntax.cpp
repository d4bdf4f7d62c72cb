#include "cli/Syntax.h"
#include "cli/SyntaxParts.h"
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

std::shared_ptr<FolderOptions> defineFolderAndRules(CLI::App& parser) {
    const auto options = std::make_shared<FolderOptions>();
    addFolderArgument(parser, options->folder);
    parser.add_option("--rules", options->rules, "A rule file, or - for standard input")
        ->required()
        ->type_name("RULES");
    parser.add_flag("--recursive", options->isRecursive, "Also look at files in subfolders");
    parser.add_flag("--skip-online-only", options->skipOnlineOnly,
                    "Leave files alone that are only in cloud storage");
    addParsed(parser, "--settle", options->settleSeconds, parseSettle,
              "Leave files alone that changed less than SECONDS ago (3 unless given)")
        ->type_name("SECONDS");
    addJson(parser, options->json);
    return options;
}

} // namespace

Command defineTidy(CLI::App& parser) {
    return bound<tidyCommand>(defineFolderAndRules(parser));
}

Command definePreview(CLI::App& parser) {
    return bound<previewCommand>(defineFolderAndRules(parser));
}

Command defineProbe(CLI::App& parser) {
    return bound<probeCommand>(defineFolderAndRules(parser));
}

Command defineCheck(CLI::App& parser) {
    const auto options = std::make_shared<CheckOptions>();
    parser.add_option("RULES", options->rules, "A rule file, or - for standard input")
        ->required()
        ->type_name("");
    addJson(parser, options->json);
    return bound<checkCommand>(options);
}

} // namespace quillon
