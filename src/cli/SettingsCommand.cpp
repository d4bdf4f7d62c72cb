#include "cli/Verbs.h"

namespace quillon {

ExitCode settingsGetCommand(const SettingsOptions& /*options*/, const Console& console,
                            Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

ExitCode settingsSetCommand(const SettingsOptions& /*options*/, const Console& console,
                            Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

ExitCode settingsListCommand(const SettingsOptions& /*options*/, const Console& console,
                             Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

} // namespace quillon
