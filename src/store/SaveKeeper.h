#pragma once

#include "platform/Storage.h"
#include "platform/Timers.h"
#include "store/RunMemory.h"
#include "store/StoreSession.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace quillon {

/// Saves the state and what automatic runs must not do again, and tries again every minute for as
/// long as that fails.
class SaveKeeper {
public:
    /// Borrows all but the last, which is called when lastError() has changed.
    SaveKeeper(StoreSession& session, RunMemory& memory, Storage& storage, std::string memoryPath,
               Timers& timers, std::function<void()> errorChanged);

    [[nodiscard]] Expected<void> save();

    /// As if a save had ended so.
    void note(const Expected<void>& result);

    /// Why the last save failed; nothing once one has succeeded.
    [[nodiscard]] const std::optional<Error>& lastError() const { return lastError_; }

    void stopRetrying() { retry_.reset(); }

private:
    [[nodiscard]] Expected<void> saveMemory();

    StoreSession& session_;
    RunMemory& memory_;
    Storage& storage_;
    std::string memoryPath_;
    Timers& timers_;
    std::function<void()> errorChanged_;
    bool isMemoryUnsaved_ = false;
    std::optional<Error> lastError_;
    std::unique_ptr<Timer> retry_;
};

} // namespace quillon
