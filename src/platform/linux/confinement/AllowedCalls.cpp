#include "platform/linux/confinement/AllowedCalls.h"

#include "platform/linux/SystemError.h"

#include <memory>
#include <seccomp.h>
#include <sys/mman.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr int allowed[] = {
    SCMP_SYS(read),
    SCMP_SYS(readv),
    SCMP_SYS(pread64),
    SCMP_SYS(lseek),
    SCMP_SYS(fstat),
    SCMP_SYS(newfstatat), // how the C library spells fstat
    SCMP_SYS(statx),
    SCMP_SYS(close),
    SCMP_SYS(poll),
    SCMP_SYS(ppoll),
    SCMP_SYS(munmap),
    SCMP_SYS(mremap),
    SCMP_SYS(madvise),
    SCMP_SYS(brk),
    SCMP_SYS(futex),
    SCMP_SYS(sched_yield),
    SCMP_SYS(sched_getaffinity),
    SCMP_SYS(rt_sigaction),
    SCMP_SYS(rt_sigprocmask),
    SCMP_SYS(rt_sigreturn),
    SCMP_SYS(sigaltstack),
    SCMP_SYS(restart_syscall),
    SCMP_SYS(clock_gettime),
    SCMP_SYS(clock_getres),
    SCMP_SYS(clock_nanosleep),
    SCMP_SYS(gettimeofday),
    SCMP_SYS(time),
    SCMP_SYS(getrusage),
    SCMP_SYS(getrandom),
    SCMP_SYS(getpid),
    SCMP_SYS(gettid),
    SCMP_SYS(getuid),
    SCMP_SYS(geteuid),
    SCMP_SYS(getgid),
    SCMP_SYS(getegid),
    SCMP_SYS(uname),
    SCMP_SYS(sysinfo),
    SCMP_SYS(exit),
    SCMP_SYS(exit_group),
};

struct ConditionalCall {
    int call;
    scmp_arg_cmp condition;
};

constexpr ConditionalCall allowedWhen[] = {
    {SCMP_SYS(write), {0, SCMP_CMP_EQ, STDOUT_FILENO, 0}},
    {SCMP_SYS(write), {0, SCMP_CMP_EQ, STDERR_FILENO, 0}},
    {SCMP_SYS(writev), {0, SCMP_CMP_EQ, STDERR_FILENO, 0}}, // the C library's last words
    {SCMP_SYS(mmap), {2, SCMP_CMP_MASKED_EQ, PROT_EXEC, 0}},
    {SCMP_SYS(mprotect), {2, SCMP_CMP_MASKED_EQ, PROT_EXEC, 0}},
    {SCMP_SYS(prlimit64), {2, SCMP_CMP_EQ, 0, 0}}, // asks, and sets nothing
};

using Filter = std::unique_ptr<void, decltype(&::seccomp_release)>;

} // namespace

Expected<void> allowReadingCallsOnly() {
    const Filter filter(::seccomp_init(SCMP_ACT_ERRNO(EPERM)), &::seccomp_release);
    if (!filter) {
        return std::unexpected(systemError(ENOSYS));
    }
    int error = 0;
    for (const int call : allowed) {
        error = error != 0 ? error : ::seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, call, 0);
    }
    for (const auto& [call, condition] : allowedWhen) {
        error = error != 0
                    ? error
                    : ::seccomp_rule_add_array(filter.get(), SCMP_ACT_ALLOW, call, 1, &condition);
    }
    error = error != 0 ? error : ::seccomp_load(filter.get());
    return error == 0 ? Expected<void>() : std::unexpected(systemError(-error));
}

} // namespace quillon
