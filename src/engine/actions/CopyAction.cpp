#include "engine/actions/ActionFunctions.h"
#include "engine/actions/DestinationName.h"
#include "engine/actions/Outcome.h"
#include "engine/actions/Placing.h"

namespace quillon {

ActionResult performCopy(const RuleAction& action, const ActionContext& context) {
    const Expected<Placement> placed = placeAtDestination(action, context, Transfer::copy);
    if (!placed)
        return failed(context, QStringLiteral("copy failed: ") + placed.error().message);
    if (!placed->done)
        return nothingHappened(context);
    ActionResult result =
        happened(context, QStringLiteral("copied to ") + destinationName(action, context) +
                              lossNote(*placed));
    result.copyPath = placed->path;
    return result;
}

QString describeCopy(const RuleAction& action, const ActionContext& context) {
    return QStringLiteral("Copy to ") + destinationName(action, context);
}

} // namespace quillon
