#include "ui/editor/DobbinAvailability.h"

#include "assistant/backends/AIManager.h"

#include <QPointer>

namespace quillon {

QCoro::Task<QString> whyDobbinIsUnavailable(AIManager& manager) {
    const QPointer<AIManager> alive(&manager);
    const bool asksClaude = co_await manager.asksClaude();
    if (!alive || asksClaude)
        co_return QString();
    co_await alive->refreshStatus();
    co_return alive ? alive->status().message : QString();
}

} // namespace quillon
