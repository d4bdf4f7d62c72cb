#pragma once

#include "store/StoreCore.h"

namespace quillon {

/// As AppStore::undo. Borrows the core for as long as it takes.
void startUndo(StoreCore& core, std::vector<QUuid> entryIDs,
               std::function<void(AppStore::UndoReport)> done, Progress progress,
               std::function<bool()> mayContinue);

} // namespace quillon
