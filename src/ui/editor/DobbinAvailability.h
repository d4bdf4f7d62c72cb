#pragma once

#include <QCoroTask>
#include <QString>

namespace quillon {

class AIManager;

/// Why Dobbin can't be asked now, in a sentence; empty when he can. Borrows the manager.
[[nodiscard]] QCoro::Task<QString> whyDobbinIsUnavailable(AIManager& manager);

} // namespace quillon
