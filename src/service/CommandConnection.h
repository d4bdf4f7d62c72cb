#pragma once

#include "platform/linux/LocalSocket.h"
#include "service/Console.h"
#include "service/ExitCode.h"
#include "service/Frames.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace quillon {

/// Carries out a command line on the calling thread.
using CommandRunner =
    std::function<ExitCode(const std::vector<std::string>& arguments, const Console& console)>;

/// The instance's end of one control connection. serve() runs on a thread of its own; the rest may
/// be called from any while it does.
class CommandConnection {
public:
    explicit CommandConnection(LocalSocket socket) : socket_(std::move(socket)) {}

    /// Takes one request and carries it out. `received` is called first, with its arguments.
    void serve(const CommandRunner& run,
               const std::function<void(const std::vector<std::string>&)>& received);

    /// Tells the other end that this process is well. Never waits.
    void sayAlive();
    /// The command is to end early.
    void cancel() { isCancelled_ = true; }
    /// Gives up on the other end.
    void hangUp();

    /// False once the other end is gone, or doesn't want the command any more. While the command is
    /// carried out.
    [[nodiscard]] bool mayContinue();

    /// Waits while the other end has more to read than it takes; false when it is gone.
    bool send(FrameType type, std::string_view payload);
    /// The next bytes of standard input, none at its end. With a question: one line of it with its
    /// end, for which the other end asks the person there. Waits.
    [[nodiscard]] std::string input(const std::string& question = {});

private:
    [[nodiscard]] std::optional<Frame> receive(std::chrono::steady_clock::time_point deadline);
    [[nodiscard]] std::optional<std::string> secretLine(const std::string& question);
    void lookForCancel();

    LocalSocket socket_;
    std::atomic<bool> isCancelled_ = false;

    std::mutex sending_;   ///< held while a frame is sent
    std::mutex receiving_; ///< guards what follows
    FrameReader reader_;
    std::chrono::steady_clock::time_point nextLook_;
};

} // namespace quillon
