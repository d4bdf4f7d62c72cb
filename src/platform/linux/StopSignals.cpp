#include "platform/linux/StopSignals.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <initializer_list>
#include <sys/eventfd.h>
#include <unistd.h>

namespace quillon {

namespace {

// A signal handler has nothing else to reach.
std::atomic<bool> askedToStop = false;
std::atomic<int> notices = -1;
static_assert(std::atomic<bool>::is_always_lock_free && std::atomic<int>::is_always_lock_free);

void note(int /*signal*/) {
    const int before = errno;
    askedToStop = true;
    const std::uint64_t one = 1;
    // Fails only when nobody has taken a great many notices already.
    (void)!::write(notices, &one, sizeof one);
    errno = before;
}

void catchStopSignals(int flags) {
    if (notices < 0)
        notices = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction current = {};
        // Whoever started us with a signal ignored (nohup) means it to stay so.
        if (::sigaction(signal, nullptr, &current) != 0 || current.sa_handler == SIG_IGN) {
            continue;
        }
        struct sigaction action = {};
        action.sa_handler = note;
        action.sa_flags = flags;
        // Refused only for signals that can't be caught.
        (void)::sigaction(signal, &action, nullptr);
    }
}

} // namespace

void noteStopSignals() {
    catchStopSignals(static_cast<int>(SA_RESTART | SA_RESETHAND));
}

void noteEveryStopSignal() {
    catchStopSignals(static_cast<int>(SA_RESTART));
}

bool wasAskedToStop() {
    return askedToStop;
}

int stopSignalDescriptor() {
    return notices;
}

int takeStopSignals() {
    std::uint64_t count = 0;
    return ::read(notices, &count, sizeof count) == sizeof count ? static_cast<int>(count) : 0;
}

void ignoreBrokenPipes() {
    // Children start with the default again.
    (void)::signal(SIGPIPE, SIG_IGN);
}

} // namespace quillon
