#pragma once

#include "platform/linux/InotifyWatching.h"
#include "support/PrintQt.h"
#include "support/ScratchFolder.h"

#include <condition_variable>
#include <mutex>
#include <thread>

namespace quillon::testing {

/// What a watcher has told so far.
class Told {
public:
    FolderWatchHandlers handlers() {
        return {.changed = [this] { add(changes_); }, .warningChanged = [this] { add(warnings_); }};
    }

    [[nodiscard]] int changes() const { return get(changes_); }
    [[nodiscard]] int warnings() const { return get(warnings_); }

    /// Whether it comes true before long. Asked whenever something is told.
    template <typename Condition>
    [[nodiscard]] bool wait(Condition condition) {
        std::unique_lock lock(lock_);
        return happened_.wait_for(lock, std::chrono::seconds(20), [&] {
            lock.unlock();
            const bool isTrue = condition();
            lock.lock();
            return isTrue;
        });
    }
    [[nodiscard]] bool waitForChange(int before) {
        return wait([&] { return changes() > before; });
    }

private:
    void add(int& count) {
        {
            const std::lock_guard lock(lock_);
            ++count;
        }
        happened_.notify_all();
    }
    [[nodiscard]] int get(const int& count) const {
        const std::lock_guard lock(lock_);
        return count;
    }

    mutable std::mutex lock_;
    std::condition_variable happened_;
    int changes_ = 0;
    int warnings_ = 0;
};

/// Where thousands of files are made quickly.
inline std::string memoryFolder() {
    return ::access("/dev/shm", W_OK) == 0 ? "/dev/shm"
                                           : std::filesystem::temp_directory_path().string();
}

/// Watching of real folders in a scratch folder, with every change told at once.
class WatchBench {
public:
    WatchBench() { scratch.makeFolder("bell"); }

    [[nodiscard]] std::unique_ptr<FolderWatcher> watch(const std::string& name, Told& told) {
        return watching_.watch(scratch.path(name), told.handlers());
    }

    /// Returns once all that has been asked for and all that has happened so far is dealt with: a
    /// change made now comes after it.
    void settle() {
        // A watcher of its own is told last, and its second change is a message behind all others.
        Told rung;
        const auto bell = watching_.watch(scratch.path("bell"), rung.handlers());
        for (const int before : {0, 1}) {
            scratch.write("bell/" + std::to_string(++rings_), "");
            ASSERT_TRUE(rung.wait([&] { return rung.changes() > before; }));
        }
    }

    /// Whether the work is told of.
    template <typename Work>
    [[nodiscard]] bool tells(Told& told, Work work) {
        settle();
        const int before = told.changes();
        work();
        settle();
        return told.changes() > before;
    }

    [[nodiscard]] FolderWatching& watching() { return watching_; }

    ScratchFolder scratch{memoryFolder()};

private:
    InotifyWatching watching_{{.latency = std::chrono::milliseconds(0)}};
    int rings_ = 0;
};

/// Lets the clock that dates files move on, so that what was made so far is older than what
/// follows.
inline void passTick() {
    timespec start = {};
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &start);
    do {
        std::this_thread::yield();
        ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
    } while (std::pair(now.tv_sec, now.tv_nsec) <= std::pair(start.tv_sec, start.tv_nsec));
}

} // namespace quillon::testing
