#pragma once

#include "platform/linux/ChangeCoalescer.h"
#include "platform/linux/Descriptor.h"
#include "platform/linux/InotifyQueue.h"
#include "platform/linux/RootWatch.h"
#include "platform/linux/WatchSubscription.h"
#include "platform/linux/WatchingOptions.h"

#include <list>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace quillon {

/// The thread that watches: it alone talks to the kernel's queue, walks watched trees and calls
/// handlers. It sleeps until something happens, or until something is due, and touches nothing that
/// is on another machine.
class WatchLoop {
public:
    explicit WatchLoop(WatchingOptions options);
    /// Returns once the thread has ended.
    ~WatchLoop();
    WatchLoop(const WatchLoop&) = delete;
    WatchLoop& operator=(const WatchLoop&) = delete;

    /// From any thread; what they ask for happens soon.
    void add(std::shared_ptr<WatchSubscription> subscription);
    void remove(const std::shared_ptr<WatchSubscription>& subscription);

private:
    struct Watched {
        Watched(std::shared_ptr<WatchSubscription> its, InotifyQueue& queue,
                const WatchingOptions& options, std::shared_ptr<const Descriptor> wake)
            : subscription(std::move(its))
            , root(subscription->path(), queue, options, std::move(wake), subscription->since())
            , changes(options.latency) {}

        std::shared_ptr<WatchSubscription> subscription;
        RootWatch root;
        ChangeCoalescer changes;
    };
    struct Request {
        std::shared_ptr<WatchSubscription> subscription;
        bool isRemoval = false;
    };

    void ask(Request request);
    void run();
    [[nodiscard]] bool wait();
    void answerRequests();
    void readEvents();
    void deliver();
    [[nodiscard]] int timeout() const;

    const WatchingOptions options_;
    std::shared_ptr<const Descriptor> wake_;
    std::mutex requestLock_;
    std::vector<Request> requests_;
    bool isEnding_ = false;

    // Of the thread.
    InotifyQueue queue_;
    Descriptor mounts_;
    std::list<Watched> watched_;
    std::thread thread_;
};

} // namespace quillon
