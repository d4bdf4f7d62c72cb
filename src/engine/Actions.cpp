#include "engine/Actions.h"

#include "engine/actions/ActionFunctions.h"
#include "platform/FileNames.h"

namespace quillon {

namespace {

QString describeByLabel(const RuleAction& action, const ActionContext&) {
    return rawValue(action.type);
}

std::vector<std::string> ownFolder(const RuleAction&, const ActionContext& context) {
    return {std::string(parentPath(context.path))};
}

std::vector<std::string> nowhere(const RuleAction&, const ActionContext&) {
    return {};
}

struct Entry {
    ActionType type;
    ActionResult (*perform)(const RuleAction&, const ActionContext&);
    QString (*describe)(const RuleAction&, const ActionContext&);
    std::vector<std::string> (*targets)(const RuleAction&, const ActionContext&);
};

constexpr std::array entries = std::to_array<Entry>({
    {ActionType::move, performMove, describeMove, moveTargets},
    {ActionType::copy, performCopy, describeCopy, moveTargets},
    {ActionType::rename, performRename, describeRename, ownFolder},
    {ActionType::renameWithDobbin, performRenameWithDobbin, describeByLabel, ownFolder},
    {ActionType::addTag, performAddTag, describeAddTag, nowhere},
    {ActionType::removeTag, performRemoveTag, describeRemoveTag, nowhere},
    {ActionType::sortIntoSubfolder, performSort, describeSort, sortTargets},
    {ActionType::unpack, performUnpack, describeUnpack, ownFolder},
    {ActionType::runShortcut, performShortcut, describeByLabel, nowhere},
    {ActionType::runScript, performScript, describeByLabel, nowhere},
    {ActionType::trash, performTrash, describeByLabel, nowhere},
});

constexpr bool isInOrder() {
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (static_cast<std::size_t>(entries[i].type) != i)
            return false;
    return entries.size() == rawValues<ActionType>.size();
}
static_assert(isInOrder());

const Entry& entryOf(const RuleAction& action) {
    return entries[static_cast<std::size_t>(action.type)];
}

} // namespace

ActionResult performAction(const RuleAction& action, const ActionContext& context) {
    return entryOf(action).perform(action, context);
}

QString describeAction(const RuleAction& action, const ActionContext& context) {
    return entryOf(action).describe(action, context);
}

std::vector<std::string> targetFolders(const RuleAction& action, const ActionContext& context) {
    return entryOf(action).targets(action, context);
}

} // namespace quillon
