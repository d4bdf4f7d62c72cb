#include "platform/linux/LinuxProcesses.h"

#include "platform/linux/ChildSpawn.h"
#include "platform/linux/SystemError.h"

#include <cerrno>
#include <csignal>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

namespace {

using std::chrono::milliseconds;
using SteadyTime = std::chrono::steady_clock::time_point;

constexpr milliseconds tick{100};
constexpr milliseconds lingering{200}; ///< for what the background of an ended child still prints
constexpr milliseconds grace{2000};
constexpr std::size_t errorBytesKept = 64 * 1024;

/// Waits for one child, reads its standard error and ends it when it must end.
class ChildWatch {
public:
    ChildWatch(const ProcessRequest& request, SpawnedChild child)
        : request_(request)
        , pid_(child.pid)
        , errorOutput_(std::move(child.errorOutput))
        ,
        // Without it the ticks alone notice the end.
        exitSignal_(static_cast<int>(::syscall(SYS_pidfd_open, pid_, 0)))
        , started_(std::chrono::steady_clock::now()) {}

    [[nodiscard]] Expected<ProcessResult> run() {
        while (!isOver()) {
            waitForNews();
            readErrorOutput();
            now_ = std::chrono::steady_clock::now();
            if (!endedAt_ && hasEnded()) {
                endedAt_ = now_;
            }
            if (!endedAt_ && !reasonToEnd_) {
                endWhenDue();
            }
            if (reasonToEnd_ && !killed_ && now_ >= killAt_) {
                signalGroup(SIGKILL);
                killed_ = true;
            }
        }
        if (reasonToEnd_) {
            // The child is not reaped yet, so that its group can't be anybody else's.
            signalGroup(SIGKILL);
        }
        return reap();
    }

private:
    [[nodiscard]] bool isOver() const {
        if (!endedAt_) {
            return false;
        }
        return !errorOutput_.isOpen() || now_ >= (reasonToEnd_ ? killAt_ : *endedAt_ + lingering);
    }

    void waitForNews() {
        std::array<pollfd, 2> sources = {
            pollfd{.fd = errorOutput_.get(), .events = POLLIN, .revents = 0},
            pollfd{.fd = endedAt_ ? -1 : exitSignal_.get(), .events = POLLIN, .revents = 0},
        };
        // An interruption or a failure is one early round of the loop.
        if (::poll(sources.data(), sources.size(), static_cast<int>(tick.count())) < 0 &&
            errno != EINTR) {
            ::usleep(static_cast<useconds_t>(std::chrono::microseconds(tick).count()));
        }
    }

    /// One piece a round: a child that never stops printing must not keep us from ending it.
    void readErrorOutput() {
        if (!errorOutput_.isOpen()) {
            return;
        }
        std::array<char, 16 * 1024> piece;
        const ssize_t size = ::read(errorOutput_.get(), piece.data(), piece.size());
        if (size > 0) {
            const std::size_t read = static_cast<std::size_t>(size);
            const std::size_t kept = std::min(read, errorBytesKept - errorText_.size());
            errorText_.append(piece.data(), kept);
            isCut_ = isCut_ || kept < read;
        } else if (size == 0 || (errno != EAGAIN && errno != EINTR)) {
            errorOutput_ = Descriptor();
        }
    }

    /// True, too, when somebody has told the system to forget our children; reaping says so then.
    [[nodiscard]] bool hasEnded() const {
        siginfo_t info = {};
        const int result =
            ::waitid(P_PID, static_cast<id_t>(pid_), &info, WEXITED | WNOHANG | WNOWAIT);
        return result == 0 ? info.si_pid == pid_ : errno == ECHILD;
    }

    void endWhenDue() {
        if (request_.timeout.count() > 0 && now_ - started_ >= request_.timeout) {
            end(ProcessResult::End::timedOut);
        } else if (request_.mayContinue && now_ >= nextQuestion_) {
            nextQuestion_ = now_ + tick;
            if (!request_.mayContinue()) {
                end(ProcessResult::End::stopped);
            }
        }
    }

    void end(ProcessResult::End reason) {
        reasonToEnd_ = reason;
        killAt_ = now_ + grace;
        signalGroup(SIGTERM);
    }

    /// Fails only when nobody of the group is left, or when all have taken another user's rights:
    /// there is nothing more to do about either.
    void signalGroup(int signal) const { static_cast<void>(::kill(-pid_, signal)); }

    [[nodiscard]] Expected<ProcessResult> reap() const {
        int status = 0;
        while (::waitpid(pid_, &status, 0) < 0) {
            if (errno != EINTR) {
                return systemFailure(errno);
            }
        }
        ProcessResult result;
        const bool exited = WIFEXITED(status);
        result.end = reasonToEnd_.value_or(exited ? ProcessResult::End::exited
                                                  : ProcessResult::End::signalled);
        result.status = exited ? WEXITSTATUS(status) : WTERMSIG(status);
        QString text = QString::fromStdString(errorText_);
        while (isCut_ && text.endsWith(QChar(QChar::ReplacementCharacter))) {
            text.chop(1); // the character that the cut went through
        }
        result.errorOutput = text.trimmed();
        return result;
    }

    const ProcessRequest& request_;
    pid_t pid_;
    Descriptor errorOutput_;
    Descriptor exitSignal_;
    std::string errorText_;
    bool isCut_ = false;
    SteadyTime started_;
    SteadyTime now_;
    SteadyTime nextQuestion_;
    std::optional<SteadyTime> endedAt_;
    std::optional<ProcessResult::End> reasonToEnd_;
    SteadyTime killAt_;
    bool killed_ = false;
};

} // namespace

Expected<ProcessResult> LinuxProcesses::run(const ProcessRequest& request) {
    Expected<SpawnedChild> child = spawnChild(request);
    if (!child) {
        return std::unexpected(child.error());
    }
    return ChildWatch(request, std::move(*child)).run();
}

} // namespace quillon
