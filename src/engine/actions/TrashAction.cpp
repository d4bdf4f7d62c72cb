#include "engine/actions/ActionFunctions.h"
#include "engine/actions/Outcome.h"
#include "platform/Trash.h"

namespace quillon {

ActionResult performTrash(const RuleAction&, const ActionContext& context) {
    const Expected<std::string> trashed = context.platform.trash.put(context.path);
    if (!trashed)
        return failed(context, QStringLiteral("trash failed: ") + trashed.error().message);
    ActionResult result = happened(context, QStringLiteral("moved to Trash"));
    result.place = ActionResult::Place::gone;
    result.path.clear();
    result.trashedPath = *trashed;
    return result;
}

} // namespace quillon
