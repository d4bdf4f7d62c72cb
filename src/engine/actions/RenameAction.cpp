#include "engine/RenamePattern.h"
#include "engine/actions/ActionFunctions.h"
#include "engine/actions/Outcome.h"
#include "engine/actions/Renaming.h"
#include "platform/FileNames.h"

namespace quillon {

namespace {

std::string newName(const RuleAction& action, const ActionContext& context) {
    return expand(action.renamePattern,
                  {.fileName = std::string(lastComponent(context.path)),
                   .date = context.status.modified,
                   .counter = context.counter,
                   .captures = context.captures},
                  context.dates);
}

} // namespace

ActionResult performRename(const RuleAction& action, const ActionContext& context) {
    return renameTo(context, newName(action, context));
}

QString describeRename(const RuleAction& action, const ActionContext& context) {
    return QStringLiteral("Rename → ") + QString::fromStdString(newName(action, context));
}

} // namespace quillon
