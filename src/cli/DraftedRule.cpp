#include "cli/DraftedRule.h"

#include "assistant/QuietJudge.h"
#include "assistant/RuleDestination.h"
#include "assistant/backends/AIManager.h"
#include "cli/NamedFolder.h"
#include "cli/StoreFailure.h"
#include "platform/FileNames.h"
#include "platform/FileSystem.h"
#include "service/LoopTask.h"
#include "store/Sentences.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

Chosen<WatchedFolder> unwatchedFolder(const std::string& path, const Console& console,
                                      Services& services) {
    const std::string resolved =
        services.platform().fileSystem.resolved(absolutePath(path, console));
    if (!isValidUtf8(resolved))
        return refusal(
            ExitCode::unreadable,
            u"The folder %1 can't be read: its path is not valid UTF-8"_s.arg(pathText(path)));
    WatchedFolder folder;
    folder.path = pathText(resolved);
    return folder;
}

/// Files are looked at as a run would, but what only Dobbin knows isn't asked for a rule that may
/// never be saved.
void lookWhatItCatches(DraftedRule& drafted, const ReadyFiles& ready, Services& services) {
    QuietJudge judge(services.judge());
    const RuleEngine engine(services.platform(), judge);
    const MatchProbe probe = engine.probe(drafted.draft.rule, ready);
    drafted.matches = probe.matches;
    drafted.tested = probe.tested;
    for (const ListedFile& file : ready.files)
        if (judge.isWaiting(joinPath(ready.folder, file.path)))
            drafted.asks.append(pathText(lastComponent(file.path)));
}

QStringList destinationsOf(const Rule& rule, const Platform& platform) {
    QStringList paths;
    for (const RuleAction& action : rule.actions)
        if (const auto place = landingPlace(action.destination.value_or(QString()), platform))
            paths.append(pathText(*place));
    return paths;
}

} // namespace

std::expected<DraftPlace, ExitCode> draftPlaceAt(const std::string& path, const Console& console,
                                                 Services& services) {
    const auto view = services.viewStore();
    if (!view)
        return std::unexpected(sayStoreFailure(view.error(), console));
    for (const QString& warning : view->warnings)
        console.say(warning);
    DraftPlace found{.place = {.folder = {}, .otherFolders = view->state.folders}};
    const auto watched = watchedFolderAt(path, view->state.folders, console, services);
    found.isWatched = watched.has_value();
    const auto folder = watched ? watched : unwatchedFolder(path, console, services);
    if (!folder)
        return std::unexpected(sayRefusal(folder.error(), console));
    found.place.folder = *folder;
    std::erase_if(found.place.otherFolders,
                  [&](const WatchedFolder& other) { return other.id == folder->id; });
    return found;
}

Chosen<DraftedRule> draftRule(const QString& sentence, const RulePlace& place,
                              const Console& console, Services& services) {
    QuietJudge judge(services.judge());
    const auto ready = RuleEngine(services.platform(), judge).readyFiles(place.folder);
    if (!ready)
        return refusal(ExitCode::unreadable, u"The folder %1 can't be read: %2"_s.arg(
                                                 place.folder.path, ready.error().message));
    const auto answer = resultOnLoop<Expected<QString>>(
        services,
        [&services, request = ruleRequest(sentence, place)] {
            return services.assistant().send(request);
        },
        console.mayContinue);
    if (!answer)
        return refusal(ExitCode::someFailed, u"Stopped on request; no rule was written"_s);
    if (!*answer)
        return refusal(ExitCode::someFailed, answer->error().message);
    auto draft = draftFromJson(**answer, place, services.platform());
    if (!draft)
        return refusal(ExitCode::someFailed, draft.error().message);
    DraftedRule drafted{.draft = std::move(*draft)};
    drafted.destinations = destinationsOf(drafted.draft.rule, services.platform());
    lookWhatItCatches(drafted, *ready, services);
    return drafted;
}

} // namespace quillon
