#include "cli/Verbs.h"

namespace quillon {

ExitCode folderAddCommand(const WatchedFolderOptions& /*options*/, const Console& console,
                          Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

ExitCode folderRemoveCommand(const WatchedFolderOptions& /*options*/, const Console& console,
                             Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

ExitCode folderListCommand(const PlainOptions& /*options*/, const Console& console,
                           Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

ExitCode folderSetCommand(const WatchedFolderOptions& /*options*/, const Console& console,
                          Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

} // namespace quillon
