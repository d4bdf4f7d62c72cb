#include "engine/actions/ActionFunctions.h"
#include "engine/actions/Outcome.h"
#include "platform/FileTags.h"

namespace quillon {

namespace {

/// The number that the Finder keeps beside a tag's name.
int finderNumber(TagColor color) {
    switch (color) {
    case TagColor::gray:
        return 1;
    case TagColor::green:
        return 2;
    case TagColor::purple:
        return 3;
    case TagColor::blue:
        return 4;
    case TagColor::yellow:
        return 5;
    case TagColor::red:
        return 6;
    case TagColor::orange:
        return 7;
    }
    return 0;
}

} // namespace

ActionResult performAddTag(const RuleAction& action, const ActionContext& context) {
    const Expected<bool> added =
        context.platform.tags.add(context.path, label(action.tag), finderNumber(action.tag));
    if (!added)
        return failed(context, QStringLiteral("tagging failed"));
    if (!*added)
        return nothingHappened(context);
    return happened(context, QStringLiteral("tagged ") + rawValue(action.tag));
}

QString describeAddTag(const RuleAction& action, const ActionContext&) {
    return QStringLiteral("Tag ") + label(action.tag);
}

} // namespace quillon
