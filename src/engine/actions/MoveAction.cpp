#include "engine/Destination.h"
#include "engine/actions/ActionFunctions.h"
#include "engine/actions/DestinationName.h"
#include "engine/actions/Outcome.h"
#include "engine/actions/Placing.h"

namespace quillon {

ActionResult performMove(const RuleAction& action, const ActionContext& context) {
    const Expected<Placement> placed = placeAtDestination(action, context, Transfer::move);
    if (!placed)
        return failed(context, QStringLiteral("move failed: ") + placed.error().message);
    return moved(context, *placed, QStringLiteral("moved to ") + destinationName(action, context));
}

QString describeMove(const RuleAction& action, const ActionContext& context) {
    return QStringLiteral("Move to ") + destinationName(action, context);
}

std::vector<std::string> moveTargets(const RuleAction& action, const ActionContext& context) {
    const auto folder = destinationFolder(action.destination, context.platform.folders);
    return folder ? std::vector{*folder} : std::vector<std::string>{};
}

} // namespace quillon
