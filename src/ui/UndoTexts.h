#pragma once

#include "store/AppStore.h"

#include <QString>

namespace quillon {

/// What came of taking entries back, in a sentence; empty when there was nothing to be taken back.
[[nodiscard]] QString undoText(const AppStore::UndoReport& report);

} // namespace quillon
