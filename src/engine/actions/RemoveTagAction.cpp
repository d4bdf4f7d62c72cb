#include "engine/actions/ActionFunctions.h"
#include "engine/actions/Outcome.h"
#include "platform/FileTags.h"

namespace quillon {

ActionResult performRemoveTag(const RuleAction& action, const ActionContext& context) {
    const Expected<bool> removed = context.platform.tags.remove(context.path, label(action.tag));
    if (!removed)
        return failed(context, QStringLiteral("untagging failed"));
    if (!*removed)
        return nothingHappened(context);
    return happened(context, QStringLiteral("removed tag ") + rawValue(action.tag));
}

QString describeRemoveTag(const RuleAction& action, const ActionContext&) {
    return QStringLiteral("Remove tag ") + label(action.tag);
}

} // namespace quillon
