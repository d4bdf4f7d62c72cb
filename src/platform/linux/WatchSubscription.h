#pragma once

#include "platform/FolderWatcher.h"

#include <ctime>
#include <mutex>
#include <optional>
#include <string>

namespace quillon {

/// What a watcher and the watching thread share about one watched folder. Any thread.
class WatchSubscription {
public:
    WatchSubscription(std::string path, FolderWatchHandlers handlers, timespec since);

    [[nodiscard]] const std::string& path() const { return path_; }
    /// When watching was asked for, by the clock that files are dated with.
    [[nodiscard]] timespec since() const { return since_; }

    void tellOfChange();
    /// Tells when it is another one than before.
    void setWarning(const std::optional<QString>& warning);
    [[nodiscard]] std::optional<QString> warning() const;

    /// From here on nobody is told; waits for a handler that runs on another thread.
    void end();

private:
    std::string path_;
    FolderWatchHandlers handlers_;
    timespec since_;
    /// Held while a handler runs, which may itself end the subscription.
    std::recursive_mutex calling_;
    bool hasEnded_ = false;
    mutable std::mutex warningLock_;
    std::optional<QString> warning_;
};

} // namespace quillon
