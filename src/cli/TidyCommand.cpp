#include "cli/Inputs.h"
#include "cli/JsonOutput.h"
#include "cli/OneShotRun.h"
#include "cli/OpenStore.h"
#include "cli/Verbs.h"

namespace quillon {

ExitCode tidyCommand(const FolderOptions& options, const Console& console, Services& services) {
    auto input = readInput(options, console, services);
    if (!input) {
        console.say(input.error());
        return ExitCode::unreadable;
    }
    OneShotRun run = plannedRun(*input);
    if (!input->rules.empty()) {
        const auto store = openStoreFor(console, services);
        if (!store)
            return store.error();
        carryOut(run, std::move(*input), *store, console, services);
    }
    if (options.json) {
        JsonStream json;
        json.beginObject().key("folder").text(run.folder);
        writeOneShotRun(json, run, console.out);
        json.endObject();
        finish(json, console.out);
    } else {
        LineBuffer lines(console.out, console.colored);
        addOneShotRun(run, lines);
        addUndoHint(run, lines);
    }
    return sayHowItEnded(run, console);
}

} // namespace quillon
