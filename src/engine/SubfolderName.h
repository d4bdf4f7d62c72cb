#pragma once

#include "engine/Actions.h"
#include "model/SortStrategy.h"

#include <string>

namespace quillon {

/// The sub-folder in which a strategy puts the file: "Images", "2024-05", "PDF". One legal path
/// component.
[[nodiscard]] std::string subfolderName(SortStrategy strategy, const ActionContext& context);

} // namespace quillon
