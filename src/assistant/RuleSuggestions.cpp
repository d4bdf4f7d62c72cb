#include "assistant/RuleSuggestions.h"

#include "assistant/SuggestionReason.h"
#include "engine/Destination.h"
#include "engine/RuleChecks.h"
#include "platform/FileNames.h"

#include <algorithm>
#include <optional>

namespace quillon {
namespace {

constexpr qsizetype mostExamples = 6;

/// How many files of a topic are as useful to put away as ten of the last one's. What is known for
/// what it is goes before what only has an extension in common.
std::size_t weight(SuggestionTopic topic) {
    switch (topic) {
    case SuggestionTopic::screenshots:
    case SuggestionTopic::invoices:
    case SuggestionTopic::installers:
        return 10;
    case SuggestionTopic::archives:
    case SuggestionTopic::largeFiles:
        return 5;
    case SuggestionTopic::host:
        return 2;
    case SuggestionTopic::extension:
        return 1;
    }
    return 1;
}

/// Where the rule would move files; nothing when it moves none.
std::optional<std::string> destinationOf(const Rule& rule, const FolderView& view) {
    const RuleAction& action = rule.actions.front();
    if (action.type != ActionType::move)
        return std::nullopt;
    const auto folder = destinationFolder(action.destination, view.platform().folders);
    return folder ? std::optional(*folder) : std::nullopt;
}

/// A candidate and the files that it would take.
struct Weighed {
    RuleSuggestion suggestion;
    std::optional<std::string> destination;
    std::vector<std::size_t> places;      ///< in the view's files
    std::vector<const ListedFile*> files; ///< those

    [[nodiscard]] std::size_t usefulness() const { return files.size() * weight(suggestion.topic); }
};

/// Moving it there would change nothing: it is there, or is that folder.
bool isThere(const ListedFile& file, const std::string& folder,
             const std::optional<std::string>& destination) {
    const std::string path = joinPath(folder, file.path);
    return destination && (parentPath(path) == *destination || path == *destination);
}

std::vector<Weighed> weighed(const FolderView& view, std::vector<RuleSuggestion> candidates) {
    std::vector<Rule> rules;
    for (const RuleSuggestion& candidate : candidates)
        rules.push_back(candidate.rule);
    const std::vector<std::uint64_t> matches = view.matches(rules);
    const std::string folder = view.folder().path.toStdString();

    std::vector<Weighed> result;
    for (std::size_t rule = 0; rule < candidates.size(); ++rule) {
        Weighed& item = result.emplace_back(std::move(candidates[rule]));
        item.destination = destinationOf(item.suggestion.rule, view);
        for (std::size_t i = 0; i < matches.size(); ++i) {
            const ListedFile* const file = view.files()[i];
            if ((matches[i] >> rule & 1) == 0 || isThere(*file, folder, item.destination))
                continue;
            item.places.push_back(i);
            item.files.push_back(file);
        }
    }
    return result;
}

bool isFolder(const ListedFile* file) {
    return file->status.type == FileType::directory;
}

bool isInSubfolder(const ListedFile* file) {
    return file->path.contains('/');
}

/// Whether files can be put there, and the folder isn't the place for such files already.
bool isGoodDestination(const Weighed& item, const FolderView& view) {
    if (!item.destination)
        return true;
    const auto status = view.platform().fileSystem.status(*item.destination);
    return (!status || status->type == FileType::directory) &&
           !isSameIgnoringCase(lastComponent(*item.destination),
                               view.folder().name().toStdString());
}

bool suits(const Weighed& item, const FolderView& view) {
    return item.files.size() >= fewestFiles && std::ranges::none_of(item.files, isFolder) &&
           std::ranges::none_of(item.files, isInSubfolder) && // somebody has sorted those
           validationWarnings(item.suggestion.rule).isEmpty() && isGoodDestination(item, view) &&
           !view.isSwitchedOff(item.suggestion.rule, item.files);
}

void describe(Weighed& item, Timestamp now) {
    RuleSuggestion& suggestion = item.suggestion;
    suggestion.count = item.files.size();
    suggestion.reason = suggestionReason(suggestion, item.files, now);
    suggestion.examples.clear();
    for (const ListedFile* file : item.files) {
        if (suggestion.examples.size() == mostExamples)
            break;
        suggestion.examples.append(QString::fromUtf8(lastComponent(file->path)));
    }
}

} // namespace

std::vector<RuleSuggestion> chosenSuggestions(const FolderView& view,
                                              std::vector<RuleSuggestion> candidates,
                                              const QSet<std::uint64_t>& dismissed,
                                              std::size_t most) {
    std::vector<Weighed> items = weighed(view, std::move(candidates));
    std::ranges::stable_sort(items, std::greater{}, &Weighed::usefulness);

    enum class Fate : std::uint8_t { open, suggested, turnedDown };
    std::vector<Fate> fates(view.files().size());
    const auto countOf = [&](const Weighed& item, Fate fate) {
        return std::ranges::count_if(item.places, [&](std::size_t i) { return fates[i] == fate; });
    };
    const auto isDismissed = [&](std::uint64_t key) { return dismissed.contains(key); };
    for (const Weighed& item : items)
        if (std::ranges::all_of(item.suggestion.keys, isDismissed))
            for (const std::size_t i : item.places)
                fates[i] = Fate::turnedDown;

    std::vector<RuleSuggestion> chosen;
    for (Weighed& item : items) {
        if (chosen.size() == most)
            break;
        // Whoever turned screenshots down doesn't want the same files as PNG files either.
        const bool isTurnedDown = std::ranges::any_of(item.suggestion.keys, isDismissed) ||
                                  countOf(item, Fate::turnedDown) * 2 > std::ssize(item.places);
        if (isTurnedDown || countOf(item, Fate::suggested) > 0 || !suits(item, view))
            continue;
        for (const std::size_t i : item.places)
            fates[i] = Fate::suggested;
        describe(item, view.now());
        chosen.push_back(std::move(item.suggestion));
    }
    return chosen;
}

std::vector<RuleSuggestion> shownOf(std::vector<RuleSuggestion> suggestions) {
    suggestions.resize(std::min(suggestions.size(), mostSuggestions));
    return suggestions;
}

} // namespace quillon
