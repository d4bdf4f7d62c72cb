#include "cli/DraftedRule.h"

#include "assistant/FolderView.h"
#include "assistant/RuleDestination.h"
#include "assistant/backends/AIManager.h"
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

} // namespace

Chosen<DraftedRule> draftRule(const QString& sentence, const FolderPlace& place,
                              const Console& console, Services& services) {
    const auto view = FolderView::read(services.platform(), services.judge(), {},
                                       {.folder = place.folder, .handled = place.handled});
    if (!view)
        return refusal(ExitCode::unreadable, u"The folder %1 can't be read: %2"_s.arg(
                                                 place.folder.path, view.error().message));
    const RulePlace rulePlace{.folder = place.folder, .otherFolders = place.otherFolders};
    const auto answer = resultOnLoop<Expected<QString>>(
        services,
        [&services, request = ruleRequest(sentence, rulePlace)] {
            return services.assistant().send(request);
        },
        console.mayContinue);
    if (!answer)
        return refusal(ExitCode::someFailed, u"Stopped on request; no rule was written"_s);
    if (!*answer)
        return refusal(ExitCode::someFailed, answer->error().message);
    auto draft = draftFromJson(**answer, rulePlace, services.platform());
    if (!draft)
        return refusal(ExitCode::someFailed, draft.error().message);
    DraftedRule drafted{.draft = std::move(*draft)};
    drafted.destinations = destinationsOf(drafted.draft.rule, services.platform());
    lookWhatItCatches(drafted, *view);
    return drafted;
}

} // namespace quillon
