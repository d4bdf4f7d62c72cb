#include "cli/Verbs.h"

namespace quillon {

ExitCode runCommand(const RunOptions& /*options*/, const Console& console, Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

} // namespace quillon
