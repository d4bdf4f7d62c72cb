#include "cli/Verbs.h"

namespace quillon {

ExitCode presetListCommand(const PlainOptions& /*options*/, const Console& console,
                           Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

ExitCode presetAddCommand(const PresetAddOptions& /*options*/, const Console& console,
                          Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

} // namespace quillon
