#include "engine/actions/Outcome.h"

#include "platform/FileNames.h"

namespace quillon {

ActionResult nothingHappened(const ActionContext& context) {
    ActionResult result;
    result.path = context.path;
    return result;
}

ActionResult happened(const ActionContext& context, const QString& phrase) {
    ActionResult result = nothingHappened(context);
    result.phrases.append(phrase);
    result.acted = true;
    return result;
}

ActionResult failed(const ActionContext& context, const QString& phrase) {
    ActionResult result = nothingHappened(context);
    result.phrases.append(phrase);
    result.succeeded = false;
    return result;
}

ActionResult moved(const ActionContext& context, const Placement& placement,
                   const QString& phrase) {
    if (!placement.done)
        return nothingHappened(context);
    ActionResult result = happened(context, phrase + lossNote(placement));
    result.place = ActionResult::Place::moved;
    result.path = placement.path;
    return result;
}

QString lossNote(const Placement& placement) {
    if (placement.losses.isEmpty())
        return {};
    return QStringLiteral(" (without %1)").arg(placement.losses.join(QStringLiteral(", ")));
}

QString nameOf(std::string_view path) {
    return QString::fromUtf8(lastComponent(path));
}

} // namespace quillon
