#include "cli/OpenFolder.h"

#include "cli/LineBuffer.h"
#include "cli/NamedFolder.h"
#include "cli/OpenStore.h"
#include "cli/RunOutput.h"

#include <algorithm>

namespace quillon {

std::expected<OpenFolder, ExitCode> openFolder(const std::string& path, const Console& console,
                                               Services& services) {
    const auto store = openStoreFor(console, services);
    if (!store)
        return std::unexpected(store.error());
    const auto folders = store->call([](AppStore& appStore) { return appStore.folders(); });
    auto folder = watchedFolderAt(path, folders, console, services);
    if (!folder)
        return std::unexpected(sayRefusal(folder.error(), console));
    return OpenFolder{.store = *store, .folder = std::move(*folder)};
}

std::expected<WatchedFolder, ExitCode> viewFolder(const std::string& path, const Console& console,
                                                  Services& services) {
    const auto view = viewStoreFor(console, services);
    if (!view)
        return std::unexpected(view.error());
    auto folder = watchedFolderAt(path, view->state.folders, console, services);
    if (!folder)
        return std::unexpected(sayRefusal(folder.error(), console));
    return *folder;
}

ExitCode changeAndRun(const StoreAccess& store, const std::function<void(AppStore&)>& change,
                      const QStringList& sentences, bool json, const Console& console) {
    const std::vector<RunReport> reports = store.runsOf(change, console.mayContinue);
    const ExitCode saved = sayWhetherSaved(store, console);
    if (json)
        return std::max(tellRunsAsJson(reports, console), saved);
    {
        LineBuffer lines(console.out, console.colored);
        if (saved == ExitCode::done)
            for (const QString& sentence : sentences)
                lines.add(sentence).endLine();
        if (saved == ExitCode::done && !reports.empty())
            lines.endLine();
        addRuns(reports, lines);
    }
    return std::max(sayHowRunsEnded(reports, console), saved);
}

} // namespace quillon
