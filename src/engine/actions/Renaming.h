#pragma once

#include "engine/Actions.h"

#include <string>

namespace quillon {

/// Gives the file a name, one legal component, in its own folder, or a numbered one where that is
/// taken. Nothing happens when it bears the name already, numbered or not.
[[nodiscard]] ActionResult renameTo(const ActionContext& context, const std::string& name);

} // namespace quillon
