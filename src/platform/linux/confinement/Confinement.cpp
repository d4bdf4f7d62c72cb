#include "platform/linux/confinement/Confinement.h"

#include "platform/linux/SystemError.h"
#include "platform/linux/confinement/AllowedCalls.h"
#include "platform/linux/confinement/FolderBan.h"

#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace quillon {

namespace {

struct Limit {
    __rlimit_resource resource;
    rlim_t most;
};

constexpr Limit limits[] = {
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // their shadows take terabytes
    {RLIMIT_AS, 512UL * 1024 * 1024},
#endif
    {RLIMIT_CPU, 10},
    {RLIMIT_CORE, 0},
    {RLIMIT_FSIZE, 0},
    {RLIMIT_NOFILE, 3},
    {RLIMIT_NPROC, 0},
    {RLIMIT_MEMLOCK, 0},
};

Expected<void> setLimits() {
    for (const auto& [resource, most] : limits) {
        const rlimit both{.rlim_cur = most, .rlim_max = most};
        if (::setrlimit(resource, &both) != 0) {
            return systemFailure();
        }
    }
    return {};
}

Expected<void> setSwitches() {
    ::signal(SIGXFSZ, SIG_IGN); // what is printed into a file then fails, and ends nobody
    const bool areSet = ::prctl(PR_SET_PDEATHSIG, SIGKILL) == 0 &&
                        ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
                        ::prctl(PR_SET_DUMPABLE, 0) == 0;
    return areSet ? Expected<void>() : systemFailure();
}

} // namespace

Expected<void> confineThisProcess() {
    for (const auto step : {setSwitches, banFolders, setLimits, allowReadingCallsOnly}) {
        if (Expected<void> done = step(); !done) {
            return done;
        }
    }
    return {};
}

} // namespace quillon
