#include "cli/Verbs.h"

namespace quillon {

ExitCode ruleListCommand(const RuleOptions& /*options*/, const Console& console,
                         Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

ExitCode ruleRemoveCommand(const RuleOptions& /*options*/, const Console& console,
                           Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

ExitCode ruleEnableCommand(const RuleOptions& /*options*/, const Console& console,
                           Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

ExitCode ruleDisableCommand(const RuleOptions& /*options*/, const Console& console,
                            Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

ExitCode ruleDuplicateCommand(const RuleOptions& /*options*/, const Console& console,
                              Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

ExitCode ruleCopyCommand(const RuleCopyOptions& /*options*/, const Console& console,
                         Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

ExitCode ruleMoveCommand(const RuleMoveOptions& /*options*/, const Console& console,
                         Services& /*services*/) {
    console.say(QStringLiteral("This command is being built"));
    return ExitCode::someFailed;
}

} // namespace quillon
