#include "platform/linux/HiddenLine.h"

#include "platform/linux/StopSignals.h"

#include <cerrno>
#include <poll.h>
#include <string_view>
#include <termios.h>
#include <unistd.h>

namespace quillon {
namespace {

constexpr int betweenLooksMs = 100;
constexpr std::size_t longestLine = 1 << 16;

/// Shows nothing that is typed for as long as it lives.
class HiddenTyping {
public:
    HiddenTyping() {
        if (::tcgetattr(STDIN_FILENO, &before_) != 0)
            return;
        termios hidden = before_;
        hidden.c_lflag &= ~tcflag_t(ECHO);
        isHidden_ = ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden) == 0;
    }
    ~HiddenTyping() {
        if (isHidden_)
            (void)::tcsetattr(STDIN_FILENO, TCSADRAIN, &before_);
    }
    HiddenTyping(const HiddenTyping&) = delete;
    HiddenTyping& operator=(const HiddenTyping&) = delete;

private:
    termios before_ = {};
    bool isHidden_ = false;
};

void tell(std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(STDERR_FILENO, text.data(), text.size());
        if (written <= 0)
            return;
        text.remove_prefix(std::size_t(written));
    }
}

/// The terminal hands a line over as a whole, and as much of it as is asked for.
std::optional<std::string> line() {
    std::string text;
    while (text.size() < longestLine && !wasAskedToStop()) {
        pollfd input{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
        const int ready = ::poll(&input, 1, betweenLooksMs);
        if (ready == 0 || (ready < 0 && errno == EINTR))
            continue;
        char byte = 0;
        if (ready < 0 || ::read(STDIN_FILENO, &byte, 1) != 1)
            return text.empty() ? std::nullopt : std::optional(text);
        if (byte == '\n')
            return text;
        text.push_back(byte);
    }
    return std::nullopt;
}

} // namespace

bool inputIsTerminal() {
    return ::isatty(STDIN_FILENO) == 1;
}

std::optional<std::string> readHiddenLine(const std::string& question) {
    const HiddenTyping hidden;
    tell(question);
    auto typed = line();
    // What ended the line was not shown either.
    tell("\n");
    return typed;
}

} // namespace quillon
