#include "engine/RenamePattern.h"
#include "engine/actions/ActionFunctions.h"
#include "engine/actions/Outcome.h"
#include "engine/actions/Renaming.h"
#include "platform/FileNames.h"

namespace quillon {

ActionResult performRenameWithDobbin(const RuleAction&, const ActionContext& context) {
    if (!context.smartName)
        return failed(context, QStringLiteral("rename failed: no name yet"));
    return renameTo(context,
                    keepingExtension(*context.smartName, std::string(lastComponent(context.path))));
}

} // namespace quillon
