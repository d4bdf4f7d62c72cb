#include "cli/NamedFolder.h"
#include "cli/OpenStore.h"
#include "cli/RunOutput.h"
#include "cli/Verbs.h"
#include "store/Sentences.h"

#include <algorithm>
#include <iterator>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// In the order of the watched folders, none twice.
Chosen<std::vector<QUuid>> chosenFolders(const std::vector<std::string>& given,
                                         const std::vector<WatchedFolder>& folders,
                                         const Console& console, Services& services) {
    std::vector<QUuid> named;
    for (const std::string& path : given) {
        const auto folder = watchedFolderAt(path, folders, console, services);
        if (!folder)
            return std::unexpected(folder.error());
        named.push_back(folder->id);
    }
    std::vector<QUuid> chosen;
    for (const WatchedFolder& folder : folders)
        if (given.empty() || std::ranges::count(named, folder.id) > 0)
            chosen.push_back(folder.id);
    return chosen;
}

std::vector<RunReport> runFolders(const StoreAccess& store, const std::vector<QUuid>& folderIDs,
                                  bool waits, const Console& console) {
    std::vector<RunReport> reports = store.runsOf(
        [&](AppStore& appStore) {
            for (const QUuid& id : folderIDs)
                appStore.runRules(id, RunCause::asked);
        },
        console.mayContinue);
    // Folders are tidied side by side.
    std::ranges::stable_sort(reports, {}, [&](const RunReport& report) {
        return std::ranges::find(folderIDs, report.folderID);
    });
    if (!waits)
        return reports;
    QStringList problems;
    for (const QUuid& id : folderIDs) {
        StoreAccess::Settling settling = store.untilSettled(id, console.mayContinue);
        std::ranges::move(settling.reports, std::back_inserter(reports));
        problems += settling.problems;
    }
    problems.removeDuplicates();
    for (const QString& problem : problems)
        console.say(dobbinProblem(problem));
    return reports;
}

} // namespace

ExitCode runCommand(const RunOptions& options, const Console& console, Services& services) {
    const auto store = openStoreFor(console, services);
    if (!store)
        return store.error();
    const auto folders = store->call([](AppStore& appStore) { return appStore.folders(); });
    const auto chosen = chosenFolders(options.folders, folders, console, services);
    if (!chosen)
        return sayRefusal(chosen.error(), console);
    if (chosen->empty())
        console.say(u"No folder is watched, so there is nothing to do; begin with: quillon folder "
                    "add DIR"_s);

    const std::vector<RunReport> reports = runFolders(*store, *chosen, options.waits, console);
    const ExitCode code =
        options.json ? tellRunsAsJson(reports, console) : tellRuns(reports, console);
    const auto waits = [](const RunReport& report) { return !report.run.waiting.isEmpty(); };
    if (!options.waits && !services.isInstance() && std::ranges::any_of(reports, waits))
        console.say(u"Dobbin has not been asked; “quillon run --wait” waits for his answers, and "
                    "“quillon agent” asks him by itself"_s);
    const bool wasStopped = console.mayContinue && !console.mayContinue();
    const auto isTold = [](const RunReport& report) { return report.run.interrupted; };
    const bool isWhole = !options.waits && reports.size() == chosen->size();
    if (!wasStopped || isWhole || std::ranges::any_of(reports, isTold))
        return code;
    console.say(u"Stopped on request; what is not named here is in the log"_s);
    return ExitCode::someFailed;
}

} // namespace quillon
