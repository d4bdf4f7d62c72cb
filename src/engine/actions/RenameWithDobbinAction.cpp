#include "engine/RenamePattern.h"
#include "engine/actions/ActionFunctions.h"
#include "engine/actions/Outcome.h"
#include "engine/actions/Renaming.h"
#include "platform/FileNames.h"

namespace quillon {

ActionResult performRenameWithDobbin(const RuleAction&, const ActionContext& context) {
    // The assistant knows the file by the path at which the rule took it.
    const std::string& known = context.matchedPath.empty() ? context.path : context.matchedPath;
    const std::optional<QString> name = context.judge.smartName(known);
    if (!name)
        return failed(context, QStringLiteral("rename failed: no name yet"));
    return renameTo(context, keepingExtension(*name, std::string(lastComponent(context.path))));
}

} // namespace quillon
