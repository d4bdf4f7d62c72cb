#include "platform/linux/HiddenLine.h"

#include <gtest/gtest.h>

#include <array>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

namespace quillon::testing {
namespace {

/// What the terminal shows until the text is in it, or nothing comes any more.
std::string shownUntil(int terminal, const std::string& text) {
    std::string shown;
    std::array<char, 256> space;
    pollfd output{.fd = terminal, .events = POLLIN, .revents = 0};
    while (!shown.contains(text) && ::poll(&output, 1, 10'000) == 1) {
        const ssize_t count = ::read(terminal, space.data(), space.size());
        if (count <= 0)
            break;
        shown.append(space.data(), std::size_t(count));
    }
    return shown;
}

TEST(HiddenLine, showsNothingOfWhatIsTyped) {
    int terminal = -1;
    const pid_t child = ::forkpty(&terminal, nullptr, nullptr, nullptr);
    ASSERT_GE(child, 0);
    if (child == 0) {
        const auto typed = readHiddenLine("Key: ");
        termios after = {};
        const bool isShown = ::tcgetattr(STDIN_FILENO, &after) == 0 && (after.c_lflag & ECHO) != 0;
        // _exit(), for this is a copy of the test.
        const bool isRight = typed == "sk-hidden" && !readHiddenLine("Again: ");
        ::_exit(isRight && isShown && inputIsTerminal() ? 0 : 1);
    }
    std::string shown = shownUntil(terminal, "Key: ");
    EXPECT_EQ(::write(terminal, "sk-hidden\n", 10), 10);
    shown += shownUntil(terminal, "Again: ");
    EXPECT_EQ(::write(terminal, "\x04", 1), 1) << "the end of the input";
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    EXPECT_FALSE(shown.contains("hidden")) << shown;
    ::close(terminal);
}

} // namespace
} // namespace quillon::testing
