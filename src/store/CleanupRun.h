#pragma once

#include "store/StoreCore.h"

namespace quillon {

/// As AppStore::runCleanup. Borrows the core for as long as it takes.
void startCleanup(StoreCore& core, AppStore::Cleanup cleanup,
                  const std::function<void(AppStore::CleanupReport)>& done);

} // namespace quillon
