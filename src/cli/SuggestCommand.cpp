#include "assistant/RuleSuggestions.h"
#include "assistant/SuggestionCandidates.h"
#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/NamedFolder.h"
#include "cli/Refusal.h"
#include "cli/StoreFailure.h"
#include "cli/Verbs.h"
#include "engine/RuleSummary.h"
#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

void printText(const std::vector<RuleSuggestion>& suggestions, const Console& console) {
    LineBuffer lines(console.out, console.colored);
    for (std::size_t i = 0; i < suggestions.size(); ++i) {
        const RuleSuggestion& suggestion = suggestions[i];
        lines.add(QString::number(i + 1) + u". "_s)
            .add(suggestion.rule.name, LineBuffer::Style::strong)
            .add(u": "_s + suggestion.reason)
            .endLine();
        lines.add(u"   "_s + summary(suggestion.rule)).endLine();
    }
}

} // namespace

ExitCode suggestCommand(const SuggestOptions& options, const Console& console, Services& services) {
    WatchedFolder folder;
    folder.path =
        pathText(services.platform().fileSystem.resolved(absolutePath(options.folder, console)));
    const auto view =
        FolderView::read(services.platform(), services.judge(), {}, {.folder = folder});
    if (!view) {
        console.say(view.error());
        return ExitCode::unreadable;
    }
    printText(chosenSuggestions(*view, suggestionCandidates(*view), {}), console);
    return ExitCode::done;
}

} // namespace quillon
