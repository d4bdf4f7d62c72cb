#pragma once

#include "engine/Actions.h"
#include "model/SortStrategy.h"

#include <string>

namespace quillon {

/// The sub-folder in which a strategy puts the file: "Images", "2024-05", "PDF". One legal path
/// component.
[[nodiscard]] std::string subfolderName(SortStrategy strategy, const ActionContext& context);

/// Whether a folder may be one that the strategy has made, by its name. Such a folder is never
/// sorted itself: it would take all that lies in it along.
[[nodiscard]] bool isSubfolderName(SortStrategy strategy, std::string_view name);

} // namespace quillon
