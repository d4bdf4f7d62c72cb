#include "cli/Verbs.h"

namespace quillon {

ExitCode diagnosticsCommand(const DiagnosticsOptions& /*options*/, const Console& console,
                            Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

} // namespace quillon
