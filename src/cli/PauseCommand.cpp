#include "cli/OpenStore.h"
#include "cli/RunOutput.h"
#include "cli/Verbs.h"

#include <algorithm>

namespace quillon {

ExitCode pauseCommand(const Console& console, Services& services) {
    const auto store = openStoreFor(console, services);
    if (!store)
        return store.error();
    const bool wasPaused = store->call([](AppStore& appStore) {
        const bool before = appStore.isPaused();
        appStore.setPaused(true);
        return before;
    });
    console.out << (wasPaused ? "It was paused already.\n"
                              : "Paused: nothing runs by itself. Go on with: quillon resume\n");
    return sayWhetherSaved(*store, console);
}

ExitCode resumeCommand(const Console& console, Services& services) {
    const auto store = openStoreFor(console, services);
    if (!store)
        return store.error();
    if (!store->call([](AppStore& appStore) { return appStore.isPaused(); })) {
        console.out << "It was not paused.\n";
        return ExitCode::done;
    }
    const std::vector<RunReport> reports =
        store->runsOf([](AppStore& appStore) { appStore.setPaused(false); }, console.mayContinue);
    console.out << "No longer paused.\n";
    const ExitCode runs = tellRuns(reports, console);
    return std::max(runs, sayWhetherSaved(*store, console));
}

} // namespace quillon
