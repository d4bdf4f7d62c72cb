#include "store/SaveKeeper.h"

namespace quillon {
namespace {

constexpr std::chrono::minutes retryPeriod{1};

} // namespace

SaveKeeper::SaveKeeper(StoreSession& session, RunMemory& memory, Storage& storage,
                       std::string memoryPath, Timers& timers, std::function<void()> errorChanged)
    : session_(session)
    , memory_(memory)
    , storage_(storage)
    , memoryPath_(std::move(memoryPath))
    , timers_(timers)
    , errorChanged_(std::move(errorChanged)) {}

Expected<void> SaveKeeper::save() {
    Expected<void> saved = session_.save();
    if (saved)
        saved = saveMemory();
    note(saved);
    return saved;
}

void SaveKeeper::note(const Expected<void>& result) {
    const std::optional<Error> error = result ? std::nullopt : std::optional<Error>(result.error());
    if (!error)
        retry_.reset();
    else if (!retry_)
        retry_ = timers_.every(retryPeriod, [this] { std::ignore = save(); });
    if (error == lastError_)
        return;
    lastError_ = error;
    errorChanged_();
}

Expected<void> SaveKeeper::saveMemory() {
    isMemoryUnsaved_ = isMemoryUnsaved_ || memory_.hasChanged();
    if (!isMemoryUnsaved_)
        return {};
    const Expected<void> written = storage_.writeDurably(memoryPath_, memory_.encode());
    isMemoryUnsaved_ = !written;
    return written;
}

} // namespace quillon
