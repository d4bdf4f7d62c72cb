#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace quillon {

/// Watches one folder with everything beneath it for as long as it lives. Its destructor returns
/// once no handler is running.
class FolderWatcher {
public:
    virtual ~FolderWatcher() = default;

    /// A sentence for people when the folder can't be watched as it should ("Downloads is on a
    /// network drive, so Quillon looks every 30 seconds"); nothing when all is well. Any thread.
    [[nodiscard]] virtual std::optional<QString> warning() const = 0;
};

/// Called on a thread of the watching, one call at a time for a watcher.
struct FolderWatchHandlers {
    std::function<void()> changed; ///< something changed: once a batch of events
    std::function<void()> warningChanged;
};

/// The system's notice of changes in folders. Any thread.
class FolderWatching {
public:
    virtual ~FolderWatching() = default;

    /// Starts watching and returns at once; what the folder holds now is not reported. A path that
    /// doesn't exist is watched as soon as it does.
    [[nodiscard]] virtual std::unique_ptr<FolderWatcher> watch(const std::string& path,
                                                               FolderWatchHandlers handlers) = 0;
};

} // namespace quillon
