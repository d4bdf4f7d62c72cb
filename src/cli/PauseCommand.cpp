#include "cli/Verbs.h"

namespace quillon {

ExitCode pauseCommand(const Console& console, Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

ExitCode resumeCommand(const Console& console, Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

} // namespace quillon
