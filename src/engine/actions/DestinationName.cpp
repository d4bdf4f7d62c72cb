#include "engine/actions/DestinationName.h"

#include "engine/Destination.h"
#include "engine/actions/Outcome.h"

namespace quillon {

QString destinationName(const RuleAction& action, const ActionContext& context) {
    const QString text = action.destination.value_or(QString());
    if (text.isEmpty())
        return QStringLiteral("(no folder set)");
    const auto folder = destinationFolder(action.destination, context.platform.folders);
    return nameOf(folder ? *folder : text.toStdString());
}

} // namespace quillon
