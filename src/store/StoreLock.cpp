#include "store/StoreLock.h"

namespace quillon {

Expected<std::unique_ptr<FileLock>>
waitForStoreLock(Storage& storage, const std::string& path,
                 const std::function<void(std::chrono::milliseconds)>& pause,
                 std::chrono::milliseconds patience) {
    constexpr std::chrono::milliseconds step{50};
    for (std::chrono::milliseconds waited{0};; waited += step) {
        auto lock = storage.tryLock(path);
        if (lock || lock.error().kind != ErrorKind::alreadyExists)
            return lock;
        if (waited >= patience)
            return failure(ErrorKind::timedOut,
                           QStringLiteral("Another Quillon is at work and can't be reached; try "
                                          "again when it has finished"));
        pause(step);
    }
}

} // namespace quillon
