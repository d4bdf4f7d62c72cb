#include "cli/Verbs.h"

namespace quillon {

ExitCode ruleImportCommand(const RuleFileOptions& /*options*/, const Console& console,
                           Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

ExitCode ruleExportCommand(const RuleFileOptions& /*options*/, const Console& console,
                           Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

} // namespace quillon
