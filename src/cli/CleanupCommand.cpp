#include "cli/Verbs.h"

namespace quillon {

ExitCode cleanupCommand(const CleanupOptions& /*options*/, const Console& console,
                        Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

} // namespace quillon
