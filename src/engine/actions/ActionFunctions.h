#pragma once

#include "engine/Actions.h"

#include <string>
#include <vector>

namespace quillon {

// What each action type does, says in a preview, and touches. The table in Actions.cpp lists them.

[[nodiscard]] ActionResult performMove(const RuleAction& action, const ActionContext& context);
[[nodiscard]] QString describeMove(const RuleAction& action, const ActionContext& context);
[[nodiscard]] std::vector<std::string> moveTargets(const RuleAction& action,
                                                   const ActionContext& context);

[[nodiscard]] ActionResult performCopy(const RuleAction& action, const ActionContext& context);
[[nodiscard]] QString describeCopy(const RuleAction& action, const ActionContext& context);

[[nodiscard]] ActionResult performRename(const RuleAction& action, const ActionContext& context);
[[nodiscard]] QString describeRename(const RuleAction& action, const ActionContext& context);

[[nodiscard]] ActionResult performRenameWithDobbin(const RuleAction& action,
                                                   const ActionContext& context);

[[nodiscard]] ActionResult performAddTag(const RuleAction& action, const ActionContext& context);
[[nodiscard]] QString describeAddTag(const RuleAction& action, const ActionContext& context);

[[nodiscard]] ActionResult performRemoveTag(const RuleAction& action, const ActionContext& context);
[[nodiscard]] QString describeRemoveTag(const RuleAction& action, const ActionContext& context);

[[nodiscard]] ActionResult performSort(const RuleAction& action, const ActionContext& context);
[[nodiscard]] QString describeSort(const RuleAction& action, const ActionContext& context);
[[nodiscard]] std::vector<std::string> sortTargets(const RuleAction& action,
                                                   const ActionContext& context);

[[nodiscard]] ActionResult performUnpack(const RuleAction& action, const ActionContext& context);
[[nodiscard]] QString describeUnpack(const RuleAction& action, const ActionContext& context);

[[nodiscard]] ActionResult performShortcut(const RuleAction& action, const ActionContext& context);
[[nodiscard]] ActionResult performScript(const RuleAction& action, const ActionContext& context);
[[nodiscard]] ActionResult performTrash(const RuleAction& action, const ActionContext& context);

} // namespace quillon
