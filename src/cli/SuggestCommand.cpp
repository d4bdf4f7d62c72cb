#include "assistant/RuleSuggestions.h"
#include "assistant/SuggestionCandidates.h"
#include "assistant/SuggestionMemory.h"
#include "assistant/SuggestionNaming.h"
#include "assistant/backends/AIManager.h"
#include "cli/AddedRules.h"
#include "cli/FolderPlace.h"
#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/ShellWord.h"
#include "cli/SuggestOutput.h"
#include "cli/Verbs.h"
#include "platform/Clock.h"
#include "service/LoopTask.h"
#include "store/Sentences.h"
#include "store/SettingsTable.h"

#include <chrono>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

// Better names are worth a wait, but no long one.
constexpr std::chrono::seconds namingPatience{20};

// What was shown is not what anybody remembers a day later.
constexpr std::chrono::hours shownFor{24};

/// What is remembered of the folder. A file that can't be read is said, and costs nothing else.
RememberedSuggestions remembered(const QString& path, const Console& console, Services& services) {
    auto found = services.suggestionMemory().of(path);
    if (found)
        return std::move(*found);
    console.say(u"What was suggested before can't be read: "_s + found.error().message);
    return {.path = path};
}

std::expected<FolderView, ExitCode> viewOf(const FolderPlace& place, const std::string& typed,
                                           const Console& console, Services& services) {
    auto view = FolderView::read(services.platform(), services.judge(), {},
                                 {.folder = place.folder, .handled = place.handled});
    if (view)
        return std::move(*view);
    console.say(u"The folder %1 can't be read: %2"_s.arg(pathText(typed), view.error().message));
    return std::unexpected(ExitCode::unreadable);
}

/// Under the names that a model gives them, where one answers in time.
std::vector<RuleSuggestion> named(std::vector<RuleSuggestion> counted, const FolderView& view,
                                  const QSet<std::uint64_t>& dismissed, const Console& console,
                                  Services& services) {
    if (!namingRequest(counted))
        return counted;
    const auto deadline = std::chrono::steady_clock::now() + namingPatience;
    using Named = std::optional<std::vector<RuleSuggestion>>;
    const auto answer = resultOnLoop<Named>(
        services,
        [&services, counted, folder = view.folder()] {
            return askForNames(services.assistant(), counted, folder);
        },
        [&] {
            return (!console.mayContinue || console.mayContinue()) &&
                   std::chrono::steady_clock::now() < deadline;
        });
    return answer && *answer ? chosenSuggestions(view, **answer, dismissed) : counted;
}

ExitCode show(const SuggestOptions& options, const Console& console, Services& services) {
    const auto place = folderPlaceAt(options.folder, console, services);
    if (!place)
        return place.error();
    const QString& path = place->folder.path;
    const RememberedSuggestions before = remembered(path, console, services);
    const auto view = viewOf(*place, options.folder, console, services);
    if (!view)
        return view.error();

    const QSet<std::uint64_t> dismissed = before.dismissedKeys();
    const std::vector<RuleSuggestion> suggestions =
        shownOf(named(chosenSuggestions(*view, suggestionCandidates(*view), dismissed), *view,
                      dismissed, console, services));
    if (!suggestions.empty() || !before.shown.empty()) {
        const auto kept = services.suggestionMemory().noteShown(path, suggestions,
                                                                services.platform().clock.now());
        if (!kept)
            console.say(u"What is suggested can't be remembered, so that --add and --dismiss "
                        "won't know it: "_s +
                        kept.error().message);
        else if (*kept)
            console.say(**kept);
    }
    const SuggestionList list{.folder = place->folder,
                              .isWatched = place->isWatched,
                              .typed = options.folder,
                              .suggestions = suggestions};
    if (options.json)
        printSuggestionsAsJson(list, console);
    else
        printSuggestions(list, console);
    return ExitCode::done;
}

/// The one that had this number when the list was last shown.
Chosen<RuleSuggestion> shownBefore(std::size_t number, const RememberedSuggestions& memory,
                                   const std::string& typed, Services& services) {
    const Timestamp now = services.platform().clock.now();
    const bool isFresh = memory.shownAt && std::chrono::abs(now - *memory.shownAt) < shownFor;
    const QString look = u"quillon suggest "_s + shellWord(pathText(typed));
    if (memory.shown.empty() || !isFresh)
        return refusal(ExitCode::usage,
                       u"The number is that of a list that was shown; look at it first: "_s + look);
    if (number > memory.shown.size())
        return refusal(
            ExitCode::usage,
            u"There is no number %1 among the %2 that were shown; see: %3"_s.arg(
                QString::number(number), counted(memory.shown.size(), u"suggestion"_s), look));
    return memory.shown[number - 1];
}

ExitCode add(const SuggestOptions& options, const Console& console, Services& services) {
    const auto open = openFolder(options.folder, console, services);
    if (!open)
        return open.error();
    const RememberedSuggestions memory = remembered(open->folder.path, console, services);
    const auto suggestion = shownBefore(*options.add, memory, options.folder, services);
    if (!suggestion)
        return sayRefusal(suggestion.error(), console);

    // The folder may have changed since, or its rules.
    const auto place = folderPlaceAt(options.folder, console, services);
    if (!place)
        return place.error();
    const auto view = viewOf(*place, options.folder, console, services);
    if (!view)
        return view.error();
    if (chosenSuggestions(*view, {*suggestion}, memory.dismissedKeys()).empty()) {
        console.say(u"“%1” has nothing to do in %2 any more, so it is not added; see: quillon "
                    "suggest %3"_s.arg(suggestion->rule.name, open->folder.name(),
                                       shellWord(pathText(options.folder))));
        return ExitCode::someFailed;
    }
    return addRulesAndRun(*open, {suggestion->rule}, RuleSource::suggestion, options.json, console);
}

ExitCode dismiss(const SuggestOptions& options, const Console& console, Services& services) {
    const auto place = folderPlaceAt(options.folder, console, services);
    if (!place)
        return place.error();
    const WatchedFolder& folder = place->folder;
    const auto suggestion = shownBefore(
        *options.dismiss, remembered(folder.path, console, services), options.folder, services);
    if (!suggestion)
        return sayRefusal(suggestion.error(), console);
    const auto kept = services.suggestionMemory().dismiss(folder.path, suggestion->keys,
                                                          services.platform().clock.now());
    if (!kept) {
        console.say(u"It can't be remembered that “%1” is not wanted: %2"_s.arg(
            suggestion->rule.name, kept.error().message));
        return ExitCode::someFailed;
    }
    if (*kept)
        console.say(**kept);
    if (options.json) {
        JsonStream json;
        json.beginObject().key("dismissed").text(suggestion->rule.name).endObject();
        finish(json, console.out);
    } else {
        LineBuffer(console.out, console.colored)
            .add(u"“%1” is not suggested for %2 any more"_s.arg(suggestion->rule.name,
                                                                folder.name()))
            .endLine();
    }
    return ExitCode::done;
}

} // namespace

ExitCode suggestCommand(const SuggestOptions& options, const Console& console, Services& services) {
    if (!settingTruth(services.settings(), u"ai.suggestRules")) {
        console.say(u"Suggestions are switched off; to have some: quillon settings set "
                    "ai.suggestRules true"_s);
        return ExitCode::someFailed;
    }
    if (options.add)
        return add(options, console, services);
    return options.dismiss ? dismiss(options, console, services) : show(options, console, services);
}

} // namespace quillon
