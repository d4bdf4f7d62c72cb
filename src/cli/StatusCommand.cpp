#include "cli/Verbs.h"

namespace quillon {

ExitCode statusCommand(const StatusOptions& /*options*/, const Console& console,
                       Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

} // namespace quillon
