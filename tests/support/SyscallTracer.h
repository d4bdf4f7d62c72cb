#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <sys/types.h>

namespace quillon::testing {

/// A system call that a traced process is about to make.
struct SyscallStop {
    pid_t process = 0;
    std::size_t index = 0; ///< counted from the operation's first call
    long number = 0;
    std::size_t occurrence = 0; ///< counted among the calls of this number
    std::array<std::uint64_t, 6> arguments{};
};

/// What becomes of it.
struct SyscallDecision {
    enum class Act { proceed, answer, kill };
    Act act = Act::proceed;
    long result = 0; ///< of `answer`: what the call seems to return; -errno is a failure
    struct Argument {
        std::size_t position;
        std::uint64_t value;
    };
    std::optional<Argument> argument; ///< of `proceed`: replaced before the call is made

    [[nodiscard]] static SyscallDecision kill() { return {.act = Act::kill, .argument = {}}; }
    [[nodiscard]] static SyscallDecision answer(long result) {
        return {.act = Act::answer, .result = result, .argument = {}};
    }
    [[nodiscard]] static SyscallDecision fail(int error) { return answer(-error); }
};

using DecideSyscall = std::function<SyscallDecision(const SyscallStop&)>;

struct TracedEnd {
    /// What the operation returned; absent when it was killed, or crashed, before it could.
    std::optional<std::string> answer;
    bool killed = false;   ///< by a decision
    std::size_t calls = 0; ///< system calls begun, the one it was killed at included
};

/// Why this machine lets nobody trace; absent where it does.
[[nodiscard]] std::optional<std::string> tracingRefused();

/// Forks, runs the operation in the child and asks `decide` before each of its system calls.
/// Processes that the child starts are not traced; they have ended when this returns. The answer
/// may be up to 64 KiB. Call it from a process that has one thread and no other children.
[[nodiscard]] TracedEnd runTraced(const std::function<std::string()>& operation,
                                  const DecideSyscall& decide);

/// The text to which an argument of the stopped call points.
[[nodiscard]] std::string textArgument(const SyscallStop& stop, std::size_t position);

} // namespace quillon::testing
