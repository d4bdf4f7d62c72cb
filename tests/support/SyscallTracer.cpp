#include "support/SyscallTracer.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <elf.h>
#include <fcntl.h>
#include <fstream>
#include <map>
#include <sched.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace quillon::testing {
namespace {

constexpr std::size_t answerLimit = 64 * 1024;

/// Shared with the child, so that answering makes no system call.
struct AnswerPage {
    std::atomic<bool> given;
    std::size_t size;
    char bytes[answerLimit];
};

[[noreturn]] void giveUp(const char* what) {
    std::perror(what);
    std::abort();
}

AnswerPage& answerPage() {
    static AnswerPage* const page = [] {
        void* memory = mmap(nullptr, sizeof(AnswerPage), PROT_READ | PROT_WRITE,
                            MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED)
            giveUp("mmap");
        // Orphans of a killed child come to us, so that we can wait for them.
        if (prctl(PR_SET_CHILD_SUBREAPER, 1) != 0)
            giveUp("prctl");
        return static_cast<AnswerPage*>(memory);
    }();
    return *page;
}

#if defined(__x86_64__)
void poke(pid_t process, std::size_t offset, std::uint64_t value) {
    ptrace(PTRACE_POKEUSER, process, offset, value);
}
void setNumber(pid_t process, long number) {
    poke(process, offsetof(user_regs_struct, orig_rax), static_cast<std::uint64_t>(number));
}
void setResult(pid_t process, long result) {
    poke(process, offsetof(user_regs_struct, rax), static_cast<std::uint64_t>(result));
}
void setArgument(pid_t process, std::size_t position, std::uint64_t value) {
    constexpr std::size_t offsets[] = {
        offsetof(user_regs_struct, rdi), offsetof(user_regs_struct, rsi),
        offsetof(user_regs_struct, rdx), offsetof(user_regs_struct, r10),
        offsetof(user_regs_struct, r8),  offsetof(user_regs_struct, r9)};
    poke(process, offsets[position], value);
}
#elif defined(__aarch64__)
void setNumber(pid_t process, long number) {
    int value = static_cast<int>(number);
    iovec vector{&value, sizeof value};
    ptrace(PTRACE_SETREGSET, process, NT_ARM_SYSTEM_CALL, &vector);
}
void setArgument(pid_t process, std::size_t position, std::uint64_t value) {
    user_regs_struct registers{};
    iovec vector{&registers, sizeof registers};
    ptrace(PTRACE_GETREGSET, process, NT_PRSTATUS, &vector);
    registers.regs[position] = value;
    ptrace(PTRACE_SETREGSET, process, NT_PRSTATUS, &vector);
}
void setResult(pid_t process, long result) {
    setArgument(process, 0, static_cast<std::uint64_t>(result));
}
#else
#error "say here how a system call's number, arguments and result are set"
#endif

[[noreturn]] void runChild(const std::function<std::string()>& operation) {
    AnswerPage& page = answerPage();
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
        _exit(1);
    syscall(SYS_kill, getpid(), SIGSTOP);
    const std::string answer = operation();
    page.size = std::min(answer.size(), answerLimit);
    std::memcpy(page.bytes, answer.data(), page.size);
    page.given = true;
    _exit(0);
}

/// Kills and reaps what still runs after the child's end: an unpacker that lost its parent goes on
/// writing for a moment, and its folder must not be taken from under it.
void waitForOrphans() {
    using namespace std::chrono;
    const auto deadline = steady_clock::now() + seconds(10);
    for (;;) {
        const pid_t ended = waitpid(-1, nullptr, WNOHANG);
        if (ended < 0)
            return;
        if (ended > 0)
            continue;
        if (steady_clock::now() > deadline) {
            std::ifstream children("/proc/thread-self/children");
            for (pid_t child = 0; children >> child;)
                kill(child, SIGKILL);
        }
        std::this_thread::sleep_for(microseconds(200));
    }
}

/// Keeps us and the children of the meantime on one processor: every stop hands over from one to
/// the other, which costs half as much when nobody has to be woken elsewhere.
class OneProcessor {
public:
    OneProcessor() {
        cpu_set_t here;
        CPU_ZERO(&here);
        CPU_SET(static_cast<std::size_t>(sched_getcpu()), &here);
        isPinned_ = sched_getaffinity(0, sizeof before_, &before_) == 0 &&
                    sched_setaffinity(0, sizeof here, &here) == 0;
    }
    ~OneProcessor() {
        if (isPinned_)
            sched_setaffinity(0, sizeof before_, &before_);
    }
    OneProcessor(const OneProcessor&) = delete;
    OneProcessor& operator=(const OneProcessor&) = delete;

private:
    cpu_set_t before_{};
    bool isPinned_ = false;
};

class Tracer {
public:
    Tracer(pid_t process, const DecideSyscall& decide) : process_(process), decide_(decide) {}

    TracedEnd run() {
        int status = 0;
        if (waitpid(process_, &status, __WALL) != process_ || !WIFSTOPPED(status))
            return end_;
        if (ptrace(PTRACE_SETOPTIONS, process_, nullptr,
                   PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL) != 0) {
            ::kill(process_, SIGKILL);
            return end_;
        }
        if (!decide_) {
            ptrace(PTRACE_DETACH, process_, nullptr, nullptr);
            waitpid(process_, &status, 0);
            return end_;
        }
        int signal = 0;
        for (;;) {
            ptrace(PTRACE_SYSCALL, process_, nullptr, signal);
            if (waitpid(process_, &status, __WALL) != process_)
                giveUp("waitpid");
            if (!WIFSTOPPED(status))
                return end_;
            const bool isSyscall = WSTOPSIG(status) == (SIGTRAP | 0x80);
            signal = isSyscall ? 0 : WSTOPSIG(status);
            if (isSyscall)
                handleStop();
        }
    }

private:
    void handleStop() {
        struct __ptrace_syscall_info info {};
        if (ptrace(PTRACE_GET_SYSCALL_INFO, process_, sizeof info, &info) <= 0)
            return; // it is being killed; the next wait tells
        if (info.op == PTRACE_SYSCALL_INFO_EXIT && answer_)
            setResult(process_, *std::exchange(answer_, std::nullopt));
        if (info.op != PTRACE_SYSCALL_INFO_ENTRY)
            return;
        const long number = static_cast<long>(info.entry.nr);
        SyscallStop stop{process_, end_.calls++, number, occurrences_[number]++, {}};
        std::copy_n(info.entry.args, stop.arguments.size(), stop.arguments.begin());
        apply(decide_(stop));
    }

    void apply(const SyscallDecision& decision) {
        switch (decision.act) {
        case SyscallDecision::Act::proceed:
            if (decision.argument)
                setArgument(process_, decision.argument->position, decision.argument->value);
            return;
        case SyscallDecision::Act::answer:
            setNumber(process_, -1);
            answer_ = decision.result;
            return;
        case SyscallDecision::Act::kill:
            end_.killed = true;
            ::kill(process_, SIGKILL);
        }
    }

    const pid_t process_;
    const DecideSyscall& decide_;
    std::optional<long> answer_;
    std::map<long, std::size_t> occurrences_;
    TracedEnd end_;
};

} // namespace

TracedEnd runTraced(const std::function<std::string()>& operation, const DecideSyscall& decide) {
    AnswerPage& page = answerPage();
    page.given = false;
    const OneProcessor pinned;
    const pid_t process = fork();
    if (process < 0)
        giveUp("fork");
    if (process == 0)
        runChild(operation);
    TracedEnd end = Tracer(process, decide).run();
    waitForOrphans();
    if (page.given)
        end.answer.emplace(page.bytes, page.size);
    return end;
}

std::optional<std::string> tracingRefused() {
    bool stopped = false;
    const TracedEnd end = runTraced([] { return std::to_string(getppid()); },
                                    [&](const SyscallStop& stop) {
                                        stopped = stopped || stop.number == SYS_getppid;
                                        return SyscallDecision{};
                                    });
    if (stopped && end.answer)
        return std::nullopt;
    return "this machine does not let a process trace its own child";
}

std::string textArgument(const SyscallStop& stop, std::size_t position) {
    std::string text;
    auto address = static_cast<std::uintptr_t>(stop.arguments[position]);
    for (;;) {
        errno = 0;
        const long word = ptrace(PTRACE_PEEKDATA, stop.process, address + text.size(), nullptr);
        if (errno != 0)
            return text;
        char bytes[sizeof word];
        std::memcpy(bytes, &word, sizeof word);
        const std::size_t length = strnlen(bytes, sizeof word);
        text.append(bytes, length);
        if (length < sizeof word)
            return text;
    }
}

} // namespace quillon::testing
