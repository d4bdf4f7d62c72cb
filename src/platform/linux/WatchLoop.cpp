#include "platform/linux/WatchLoop.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <utility>

namespace quillon {

namespace {

using SteadyClock = std::chrono::steady_clock;

/// A thread on which no signal arrives: they are for the main thread.
template <typename Work>
std::thread quietThread(Work work) {
    sigset_t all = {};
    sigset_t before = {};
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    std::thread thread(std::move(work));
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return thread;
}

} // namespace

WatchLoop::WatchLoop(WatchingOptions options)
    : options_(std::move(options))
    , wake_(std::make_shared<const Descriptor>(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)))
    , queue_(options_.maxWatches)
    , mounts_(::open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC))
    , thread_(quietThread([this] { run(); })) {}

WatchLoop::~WatchLoop() {
    {
        const std::lock_guard lock(requestLock_);
        isEnding_ = true;
    }
    (void)::eventfd_write(wake_->get(), 1);
    thread_.join();
}

void WatchLoop::add(std::shared_ptr<WatchSubscription> subscription) {
    ask({.subscription = std::move(subscription)});
}

void WatchLoop::remove(const std::shared_ptr<WatchSubscription>& subscription) {
    ask({.subscription = subscription, .isRemoval = true});
}

void WatchLoop::ask(Request request) {
    {
        const std::lock_guard lock(requestLock_);
        requests_.push_back(std::move(request));
    }
    (void)::eventfd_write(wake_->get(), 1);
}

void WatchLoop::run() {
    while (wait()) {
        answerRequests();
        deliver();
    }
}

/// Until something happens or is due, and reads what has happened. False at the end.
bool WatchLoop::wait() {
    std::array<pollfd, 3> sources{{
        {.fd = wake_->get(), .events = POLLIN, .revents = 0},
        {.fd = queue_.descriptor(), .events = POLLIN, .revents = 0},
        {.fd = mounts_.get(), .events = POLLPRI, .revents = 0},
    }};
    (void)::poll(sources.data(), sources.size(), timeout());
    eventfd_t count = 0;
    (void)::eventfd_read(wake_->get(), &count);
    {
        const std::lock_guard lock(requestLock_);
        if (isEnding_) {
            return false;
        }
    }
    if (sources[1].revents != 0) {
        readEvents();
    }
    if ((sources[2].revents & POLLPRI) != 0) {
        for (Watched& each : watched_) {
            if (!each.root.lacksWatches()) {
                each.root.relocate();
            }
        }
    }
    return true;
}

void WatchLoop::answerRequests() {
    std::vector<Request> requests;
    {
        const std::lock_guard lock(requestLock_);
        requests.swap(requests_);
    }
    bool hasRemoved = false;
    for (Request& request : requests) {
        if (request.isRemoval) {
            hasRemoved = true;
            std::erase_if(watched_, [&request](const Watched& each) {
                return each.subscription == request.subscription;
            });
        } else {
            watched_.emplace_back(std::move(request.subscription), queue_, options_, wake_);
        }
    }
    // Their watches may be what others lack.
    for (Watched& each : watched_) {
        if (hasRemoved && each.root.lacksWatches()) {
            each.root.relocate();
        }
    }
}

void WatchLoop::readEvents() {
    for (const InotifyEvent& event : queue_.read()) {
        for (Watched& each : watched_) {
            if ((event.mask & IN_Q_OVERFLOW) != 0) {
                each.root.rescan();
            } else {
                each.root.handle(event);
            }
        }
    }
}

void WatchLoop::deliver() {
    for (Watched& each : watched_) {
        if (each.root.lookDue() && *each.root.lookDue() <= SteadyClock::now()) {
            each.root.look();
        }
        if (each.root.takeChange()) {
            each.changes.note(SteadyClock::now());
        }
        each.subscription->setWarning(each.root.warning());
        if (each.changes.take(SteadyClock::now())) {
            each.subscription->tellOfChange();
        }
    }
}

/// In milliseconds, rounded up; -1 when nothing is due.
int WatchLoop::timeout() const {
    std::optional<SteadyClock::time_point> next;
    if (!wake_->isOpen()) { // for want of descriptors
        next = SteadyClock::now() + std::chrono::seconds(1);
    }
    for (const Watched& each : watched_) {
        for (const auto& due : {each.root.lookDue(), each.changes.due()}) {
            if (due && (!next || *due < *next)) {
                next = due;
            }
        }
    }
    if (!next) {
        return -1;
    }
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*next - SteadyClock::now());
    return static_cast<int>(std::max(left, std::chrono::milliseconds(0)).count());
}

} // namespace quillon
