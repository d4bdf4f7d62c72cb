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
#include "cli/ThinkingHint.h"
#include "cli/Verbs.h"
#include "platform/Clock.h"
#include "service/LoopTask.h"
#include "store/PersistedState.h"
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

/// False when --add and --dismiss won't know it; says so.
bool isRemembered(const QString& path, const std::vector<RuleSuggestion>& suggestions,
                  bool isForProgram, const Console& console, Services& services) {
    const auto kept = services.suggestionMemory().noteShown(
        path, suggestions, services.platform().clock.now(),
        isForProgram ? SuggestionReader::program : SuggestionReader::person);
    if (!kept)
        console.say(u"What is suggested can't be remembered, so none of it can be added or "
                    "dismissed: "_s +
                    kept.error().message);
    else if (*kept)
        console.say(**kept);
    return kept.has_value();
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
    ThinkingHint hint(console, services.platform().clock);
    using Named = std::optional<std::vector<RuleSuggestion>>;
    const auto answer = resultOnLoop<Named>(
        services,
        [&services, counted, folder = view.folder()] {
            return askForNames(services.assistant(), counted, folder);
        },
        [&] { return hint.mayContinue() && std::chrono::steady_clock::now() < deadline; });
    return answer && *answer ? chosenSuggestions(view, **answer, dismissed) : counted;
}

ExitCode show(const SuggestOptions& options, const Console& console, Services& services) {
    const auto place = folderPlaceAt(options.folder, console, services);
    if (!place)
        return place.error();
    const QString& path = place->folder.path;
    const auto before = services.suggestionMemory().of(path);
    const auto view = viewOf(*place, options.folder, console, services);
    if (!view)
        return view.error();

    const QSet<std::uint64_t> dismissed = before ? before->dismissedKeys() : QSet<std::uint64_t>();
    const std::vector<RuleSuggestion> suggestions =
        shownOf(named(chosenSuggestions(*view, suggestionCandidates(*view), dismissed), *view,
                      dismissed, console, services));
    // A file that can't be understood is put aside by writing a new one.
    const bool isNews =
        !suggestions.empty() || !before || !(options.json ? before->read : before->shown).empty();
    const bool isKnown =
        !isNews || isRemembered(path, suggestions, options.json, console, services);
    const SuggestionList list{.folder = place->folder,
                              .isWatched = place->isWatched,
                              .isRemembered = isKnown,
                              .typed = options.folder,
                              .suggestions = suggestions};
    if (options.json)
        printSuggestionsAsJson(list, console);
    else
        printSuggestions(list, console);
    return ExitCode::done;
}

using ShownList = std::vector<RuleSuggestion>;

/// None of what has been shown too long ago.
ShownList fresh(const ShownList& list, std::optional<Timestamp> at, Timestamp now) {
    return at && std::chrono::abs(now - *at) < shownFor ? list : ShownList();
}

/// The one that has this id, or had this number when a person last saw the list.
Chosen<RuleSuggestion> shownBefore(const std::string& word,
                                   const Expected<RememberedSuggestions>& memory,
                                   const std::string& typed, Services& services) {
    const QString look = u"quillon suggest "_s + shellWord(pathText(typed));
    if (!memory)
        return refusal(ExitCode::someFailed,
                       u"What was suggested before can't be read (%1); look at it again: %2"_s.arg(
                           memory.error().message, look));
    const Timestamp now = services.platform().clock.now();
    const ShownList shown = fresh(memory->shown, memory->shownAt, now);
    const ShownList read = fresh(memory->read, memory->readAt, now);
    const QString wanted = QString::fromStdString(word);
    for (const ShownList* list : {&shown, &read})
        for (const RuleSuggestion& suggestion : *list)
            if (suggestionID(suggestion).compare(wanted, Qt::CaseInsensitive) == 0)
                return suggestion;
    const std::size_t number = wanted.toUInt();
    if (number > 0 && number <= shown.size())
        return shown[number - 1];
    return refusal(ExitCode::usage,
                   shown.empty() && read.empty()
                       ? u"Look at what is suggested first: "_s + look
                       : u"There is no suggestion “%1” among those that were shown; see: %2"_s.arg(
                             wanted, look));
}

ExitCode add(const SuggestOptions& options, const Console& console, Services& services) {
    const auto open = openFolder(options.folder, console, services);
    if (!open)
        return open.error();
    const auto memory = services.suggestionMemory().of(open->folder.path);
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
    const ShownList now = chosenSuggestions(*view, {*suggestion}, memory->dismissedKeys());
    if (now.empty()) {
        console.say(
            u"“%1” doesn't suit %2 any more, so it is not added; see: quillon suggest %3"_s.arg(
                suggestion->rule.name, open->folder.name(), shellWord(pathText(options.folder))));
        return ExitCode::someFailed;
    }
    if (isBeyondUndo(now.front()) && !options.isAgreed) {
        console.say(u"“%1” is not added: it would take %2 files now, and undo reaches back over "
                    "%3 only; --anyway adds it all the same"_s.arg(
                        suggestion->rule.name, QString::number(now.front().count),
                        QString::number(logCap)));
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
        *options.dismiss, services.suggestionMemory().of(folder.path), options.folder, services);
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
