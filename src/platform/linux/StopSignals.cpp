#include "platform/linux/StopSignals.h"

#include <atomic>
#include <csignal>
#include <initializer_list>

namespace quillon {

namespace {

// A signal handler has nothing else to reach.
std::atomic<bool> askedToStop = false;
static_assert(std::atomic<bool>::is_always_lock_free);

void note(int /*signal*/) {
    askedToStop = true;
}

} // namespace

void noteStopSignals() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction current = {};
        // Whoever started us with a signal ignored (nohup) means it to stay so.
        if (::sigaction(signal, nullptr, &current) != 0 || current.sa_handler == SIG_IGN) {
            continue;
        }
        struct sigaction action = {};
        action.sa_handler = note;
        action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
        // Refused only for signals that can't be caught.
        (void)::sigaction(signal, &action, nullptr);
    }
}

bool wasAskedToStop() {
    return askedToStop;
}

} // namespace quillon
