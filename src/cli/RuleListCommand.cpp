#include "cli/OpenFolder.h"
#include "cli/RuleListOutput.h"
#include "cli/Verbs.h"

namespace quillon {

ExitCode ruleListCommand(const RuleOptions& options, const Console& console, Services& services) {
    const auto folder = viewFolder(options.folder, console, services);
    if (!folder)
        return folder.error();
    listRules(folder->rules, options.json, console);
    return ExitCode::done;
}

} // namespace quillon
