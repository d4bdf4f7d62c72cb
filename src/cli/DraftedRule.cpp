#include "cli/DraftedRule.h"

#include "assistant/DraftMemory.h"
#include "assistant/FolderView.h"
#include "assistant/RuleDestination.h"
#include "assistant/backends/AIManager.h"
#include "cli/ThinkingHint.h"
#include "platform/FileNames.h"
#include "platform/FileSystem.h"
#include "service/LoopTask.h"
#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// What only Dobbin knows isn't asked for a rule that may never be saved.
void lookWhatItCatches(DraftedRule& drafted, const FolderView& view) {
    const std::vector<std::uint64_t> matches = view.matches({drafted.draft.rule});
    drafted.tested = view.tested();
    for (std::size_t i = 0; i < matches.size(); ++i) {
        const ListedFile& file = *view.files()[i];
        const QString name = pathText(lastComponent(file.path));
        if (matches[i] != 0)
            drafted.matches.append(name);
        if (view.isWaiting(file))
            drafted.asks.append(name);
    }
}

QStringList destinationsOf(const Rule& rule, const Platform& platform) {
    QStringList paths;
    for (const RuleAction& action : rule.actions)
        if (const auto place = landingPlace(action.destination.value_or(QString()), platform))
            paths.append(pathText(*place));
    return paths;
}

Chosen<QString> modelsAnswer(const QString& sentence, const RulePlace& place,
                             const Console& console, Services& services) {
    ThinkingHint hint(console, services.platform().clock);
    const auto answer = resultOnLoop<Expected<QString>>(
        services,
        [&services, request = ruleRequest(sentence, place)] {
            return services.assistant().send(request);
        },
        [&] { return hint.mayContinue(); });
    if (!answer)
        return refusal(ExitCode::someFailed, u"Stopped on request; no rule was written"_s);
    if (!*answer)
        return refusal(ExitCode::someFailed, answer->error().message);
    return **answer;
}

} // namespace

Chosen<DraftedRule> draftRule(const QString& text, const FolderPlace& place, DraftSource source,
                              const Console& console, Services& services) {
    const QString sentence = text.trimmed();
    const Platform& platform = services.platform();
    const auto view = FolderView::read(platform, services.judge(), {},
                                       {.folder = place.folder, .handled = place.handled});
    if (!view)
        return refusal(ExitCode::unreadable, u"The folder %1 can't be read: %2"_s.arg(
                                                 place.folder.path, view.error().message));
    const RulePlace rulePlace{.folder = place.folder, .otherFolders = place.otherFolders};
    DraftMemory memory(services.storage(), platform.fileSystem, StorePlaces(platform.folders.data));
    const auto shown = source == DraftSource::memory
                           ? memory.answer(place.folder.path, sentence, platform.clock.now())
                           : std::nullopt;
    const Chosen<QString> answer =
        shown ? Chosen<QString>(*shown) : modelsAnswer(sentence, rulePlace, console, services);
    if (!answer)
        return std::unexpected(answer.error());
    auto draft = draftFromJson(*answer, rulePlace, platform);
    if (!draft)
        return refusal(ExitCode::someFailed, draft.error().message);
    if (!shown)
        memory.remember(place.folder.path, sentence, *answer, platform.clock.now());
    DraftedRule drafted{.draft = std::move(*draft), .isSeen = shown.has_value()};
    drafted.destinations = destinationsOf(drafted.draft.rule, platform);
    lookWhatItCatches(drafted, *view);
    return drafted;
}

} // namespace quillon
