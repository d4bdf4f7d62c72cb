#pragma once

#include "engine/Actions.h"
#include "platform/FileSystem.h"

#include <string>

namespace quillon {

enum class Transfer { move, copy };

/// Moves or copies the file into a folder under its own name or a numbered one. The folder is made
/// when it is missing. `done` is false when the file lies there already, or is itself the folder or
/// one that holds it.
[[nodiscard]] Expected<Placement> placeInto(const ActionContext& context, const std::string& folder,
                                            Transfer transfer);

/// The same into the folder that the action names.
[[nodiscard]] Expected<Placement>
placeAtDestination(const RuleAction& action, const ActionContext& context, Transfer transfer);

} // namespace quillon
