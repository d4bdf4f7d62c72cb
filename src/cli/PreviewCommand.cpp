#include "cli/Inputs.h"
#include "cli/JsonOutput.h"
#include "cli/PreviewOutput.h"
#include "cli/ProgressBar.h"
#include "cli/Verbs.h"

namespace quillon {

ExitCode previewCommand(const FolderOptions& options, const Console& console, Services& services) {
    const auto input = readInput(options, console, services);
    if (!input) {
        console.say(input.error());
        return ExitCode::unreadable;
    }
    std::vector<PreviewItem> items;
    {
        ProgressBar bar(console.err, services.platform().clock, console.showsProgress);
        items = services.engine(input->settings)
                    .preview(input->rules, input->ready,
                             [&](std::size_t done, std::size_t total) { bar.update(done, total); });
    }
    if (options.json) {
        JsonStream json;
        json.beginObject();
        writePreview(json, input->ready, items, console.out);
        json.endObject();
        finish(json, console.out);
    } else {
        LineBuffer lines(console.out, console.colored);
        addPreview(input->ready, items, lines);
    }
    return ExitCode::done;
}

} // namespace quillon
