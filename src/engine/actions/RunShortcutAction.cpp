#include "engine/actions/ActionFunctions.h"
#include "engine/actions/ChildEnd.h"
#include "engine/actions/Outcome.h"
#include "platform/FileNames.h"

namespace quillon {

namespace {

/// What is wrong with the name; empty when it can be the name of a shortcut.
QString nameProblem(const QString& name) {
    if (name.isEmpty())
        return QStringLiteral("no shortcut set");
    const bool isComponent =
        name != u"." && name != u".." && !name.contains(u'/') && !name.contains(QChar(u'\0'));
    return isComponent ? QString() : QStringLiteral("a shortcut is a name, not a path");
}

Expected<ProcessResult> runShortcut(const QString& name, const ActionContext& context) {
    const std::string folder = joinPath(context.platform.folders.data, "shortcuts");
    return context.platform.processes.run({
        .executable = joinPath(folder, name.toStdString()),
        .arguments = {"-i", context.path},
        .environment = {},
        .workingFolder = std::string(parentPath(context.path)),
        .timeout = context.settings.scriptTimeout,
        .mayContinue = context.settings.mayContinue,
    });
}

} // namespace

ActionResult performShortcut(const RuleAction& action, const ActionContext& context) {
    const QString name = action.shortcutName.value_or(QString());
    const QString quoted = QStringLiteral("shortcut “%1”").arg(name);
    const QString failure = quoted + QStringLiteral(" failed: ");
    if (const QString problem = nameProblem(name); !problem.isEmpty())
        return failed(context, failure + problem);

    const Expected<ProcessResult> ended = runShortcut(name, context);
    const auto problem = childFailure(ended, context.settings.scriptTimeout);
    if (!problem)
        return happened(context, QStringLiteral("ran ") + quoted);
    ActionResult result = failed(
        context, failure + (problem->isEmpty() ? QStringLiteral("exited non-zero") : *problem));
    result.acted = ended.has_value();
    return result;
}

} // namespace quillon
