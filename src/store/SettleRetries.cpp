#include "store/SettleRetries.h"

namespace quillon {

void SettleRetries::schedule(const QUuid& folderID) {
    pending_[folderID] = timers_.after(settleRetryDelay, [this, folderID] {
        pending_.erase(folderID);
        look_(folderID);
    });
}

} // namespace quillon
