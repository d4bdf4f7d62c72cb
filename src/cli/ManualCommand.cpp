#include "cli/Completions.h"
#include "cli/ManualPage.h"
#include "cli/Verbs.h"

namespace quillon {

ExitCode completionsCommand(const CompletionsOptions& options, const Console& console,
                            Services& /*services*/) {
    console.out << options.script();
    return ExitCode::done;
}

ExitCode manualCommand(const ManualOptions& options, const Console& console,
                       Services& /*services*/) {
    if (!options.listsPages) {
        console.out << manualPage(options.verb);
        return ExitCode::done;
    }
    for (const std::string& name : manualPageNames())
        console.out << name << '\n';
    return ExitCode::done;
}

} // namespace quillon
