#include "engine/SubfolderName.h"
#include "engine/actions/ActionFunctions.h"
#include "engine/actions/Outcome.h"
#include "engine/actions/Placing.h"
#include "platform/FileNames.h"

namespace quillon {

namespace {

std::string sortFolder(const RuleAction& action, const ActionContext& context) {
    return joinPath(parentPath(context.path), subfolderName(action.sortBy, context));
}

/// Whether the file lies in a folder of that name: the one that holds it or, inside of the watched
/// folder, any above. Otherwise sorting by kind and then by month would nest deeper on each run.
bool liesIn(std::string_view name, const ActionContext& context) {
    std::string_view folder = parentPath(context.path);
    if (lastComponent(folder) == name)
        return true;
    if (context.watchedFolder.empty())
        return false;
    const std::string root = context.watchedFolder + '/';
    for (; folder.starts_with(root); folder = parentPath(folder))
        if (lastComponent(folder) == name)
            return true;
    return false;
}

/// The folder to put the file in; none when it is where sorting wants it.
std::optional<std::string> targetFolder(const RuleAction& action, const ActionContext& context) {
    const bool isSubfolder = context.status.type == FileType::directory &&
                             isSubfolderName(action.sortBy, lastComponent(context.path));
    std::string folder = sortFolder(action, context);
    if (isSubfolder || liesIn(lastComponent(folder), context))
        return std::nullopt;
    return folder;
}

} // namespace

ActionResult performSort(const RuleAction& action, const ActionContext& context) {
    const std::optional<std::string> folder = targetFolder(action, context);
    if (!folder)
        return nothingHappened(context);
    const Expected<Placement> placed = placeInto(context, *folder, Transfer::move);
    if (!placed)
        return failed(context, QStringLiteral("sort failed: ") + placed.error().message);
    return moved(context, *placed, QStringLiteral("sorted into ") + nameOf(*folder));
}

QString describeSort(const RuleAction& action, const ActionContext& context) {
    return QStringLiteral("Sort into ") + nameOf(sortFolder(action, context));
}

std::vector<std::string> sortTargets(const RuleAction& action, const ActionContext& context) {
    const std::optional<std::string> folder = targetFolder(action, context);
    return folder ? std::vector{*folder} : std::vector<std::string>{};
}

} // namespace quillon
