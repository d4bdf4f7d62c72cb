#pragma once

#include "platform/FolderWatcher.h"

#include <utility>
#include <vector>

namespace quillon::testing {

/// Watching in which things happen when a test says so. One thread.
class FakeWatching final : public FolderWatching {
public:
    [[nodiscard]] std::unique_ptr<FolderWatcher> watch(const std::string& path,
                                                       FolderWatchHandlers handlers) override {
        ++started;
        return std::make_unique<Watcher>(*this, path, std::move(handlers));
    }

    /// The paths that are watched now, in the order in which their watching began.
    [[nodiscard]] std::vector<std::string> paths() const {
        std::vector<std::string> found;
        for (const Watcher* watcher : watchers_)
            found.push_back(watcher->path);
        return found;
    }
    void change(const std::string& path) {
        for (const Watcher* watcher : watching(path))
            watcher->handlers.changed();
    }
    /// Sets the warning of those who watch the path.
    void warn(const std::string& path, std::optional<QString> warning) {
        for (Watcher* watcher : watching(path)) {
            watcher->sentence = warning;
            watcher->handlers.warningChanged();
        }
    }

    int started = 0; ///< how many watchers there have been

private:
    struct Watcher final : FolderWatcher {
        Watcher(FakeWatching& owner, std::string itsPath, FolderWatchHandlers itsHandlers)
            : watching(owner), path(std::move(itsPath)), handlers(std::move(itsHandlers)) {
            watching.watchers_.push_back(this);
        }
        ~Watcher() override { std::erase(watching.watchers_, this); }
        [[nodiscard]] std::optional<QString> warning() const override { return sentence; }

        FakeWatching& watching;
        std::string path;
        FolderWatchHandlers handlers;
        std::optional<QString> sentence;
    };

    [[nodiscard]] std::vector<Watcher*> watching(const std::string& path) const {
        std::vector<Watcher*> found;
        for (Watcher* watcher : watchers_) {
            if (watcher->path == path)
                found.push_back(watcher);
        }
        return found;
    }

    std::vector<Watcher*> watchers_;
};

} // namespace quillon::testing
