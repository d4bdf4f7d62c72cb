#pragma once

#include "platform/Timers.h"

#include <QUuid>

#include <functional>
#include <map>
#include <memory>

namespace quillon {

/// How long after a run that has found files still settling the folder is looked at again.
inline constexpr std::chrono::seconds settleRetryDelay{4};

/// The one pending second look of each folder.
class SettleRetries {
public:
    SettleRetries(Timers& timers, std::function<void(const QUuid& folderID)> look)
        : timers_(timers), look_(std::move(look)) {}

    /// Instead of the one that is pending.
    void schedule(const QUuid& folderID);
    void cancel(const QUuid& folderID) { pending_.erase(folderID); }
    void cancelAll() { pending_.clear(); }
    [[nodiscard]] bool isPending(const QUuid& folderID) const {
        return pending_.contains(folderID);
    }

private:
    Timers& timers_;
    std::function<void(const QUuid& folderID)> look_;
    std::map<QUuid, std::unique_ptr<Timer>> pending_;
};

} // namespace quillon
