#include "engine/actions/ActionFunctions.h"
#include "engine/actions/ChildEnd.h"
#include "engine/actions/Outcome.h"
#include "platform/FileNames.h"

namespace quillon {

ActionResult performScript(const RuleAction& action, const ActionContext& context) {
    const ProcessRequest request{
        .executable = "/bin/zsh",
        .arguments = {"-c", action.scriptCommand.toStdString(), "quillon", context.path},
        .environment = {{"FILE", context.path}},
        .workingFolder = std::string(parentPath(context.path)),
        .timeout = context.settings.scriptTimeout,
        .mayContinue = context.settings.mayContinue,
    };
    const auto problem = childFailure(context.platform.processes.run(request), request.timeout);
    if (!problem)
        return happened(context, QStringLiteral("ran script"));
    return failed(context, QStringLiteral("script failed") +
                               (problem->isEmpty() ? QStringLiteral(" (exited non-zero)")
                                                   : QStringLiteral(": ") + *problem));
}

} // namespace quillon
