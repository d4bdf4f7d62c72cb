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
    const Expected<ProcessResult> ended = context.platform.processes.run(request);
    const auto problem = childFailure(ended, request.timeout);
    if (!problem)
        return happened(context, QStringLiteral("ran script"));
    ActionResult result =
        failed(context, QStringLiteral("script failed") +
                            (problem->isEmpty() ? QStringLiteral(" (exited non-zero)")
                                                : QStringLiteral(": ") + *problem));
    result.acted = ended.has_value();
    return result;
}

} // namespace quillon
