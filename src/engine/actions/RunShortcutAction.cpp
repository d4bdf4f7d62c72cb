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

QString runShortcut(const QString& name, const ActionContext& context) {
    const std::string folder = joinPath(context.platform.folders.data, "shortcuts");
    const ProcessRequest request{
        .executable = joinPath(folder, name.toStdString()),
        .arguments = {"-i", context.path},
        .environment = {},
        .workingFolder = std::string(parentPath(context.path)),
        .timeout = context.settings.scriptTimeout,
        .mayContinue = context.settings.mayContinue,
    };
    const auto problem = childFailure(context.platform.processes.run(request), request.timeout);
    if (problem && problem->isEmpty())
        return QStringLiteral("exited non-zero");
    return problem.value_or(QString());
}

} // namespace

ActionResult performShortcut(const RuleAction& action, const ActionContext& context) {
    const QString name = action.shortcutName.value_or(QString());
    QString problem = nameProblem(name);
    if (problem.isEmpty())
        problem = runShortcut(name, context);
    const QString quoted = QStringLiteral("shortcut “%1”").arg(name);
    if (!problem.isEmpty())
        return failed(context, quoted + QStringLiteral(" failed: ") + problem);
    return happened(context, QStringLiteral("ran ") + quoted);
}

} // namespace quillon
