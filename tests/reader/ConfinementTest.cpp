#include "platform/linux/confinement/Confinement.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace quillon::testing {

namespace {

/// The exit status of a child that confines itself and then answers.
int confined(const std::function<bool()>& question) {
    const pid_t child = ::fork();
    if (child == 0) {
        if (!confineThisProcess())
            std::_Exit(2);
        std::_Exit(question() ? 1 : 0);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

TEST(ConfinementTest, RefusesWhatParsingDoesNotNeed) {
    const int other = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    char path[] = "/tmp/quillon-test-XXXXXX";
    const int made = ::mkstemp(path);
    ASSERT_GE(made, 0);
    const struct {
        const char* title;
        std::function<bool()> succeeds; ///< tried first without confinement
    } cases[] = {
        {"socket", [] { return ::socket(AF_INET, SOCK_STREAM, 0) >= 0; }},
        {"local socket", [] { return ::socket(AF_UNIX, SOCK_STREAM, 0) >= 0; }},
        {"open", [] { return ::open("/etc/passwd", O_RDONLY) >= 0; }},
        {"open for writing", [&] { return ::open(path, O_WRONLY) >= 0; }},
        {"new file", [] { return ::open("/tmp", O_TMPFILE | O_WRONLY, 0600) >= 0; }},
        {"remove",
         [&] { return ::unlink(path) == 0 && ::close(::open(path, O_CREAT, 0600)) == 0; }},
        {"write elsewhere", [&] { return ::write(other, "x", 1) == 1; }},
        {"more of the same file", [&] { return ::dup(other) >= 0; }},
        {"pipe",
         [] {
             int ends[2];
             return ::pipe(ends) == 0;
         }},
        {"fork",
         [] {
             const long child = ::syscall(SYS_clone, SIGCHLD, nullptr);
             if (child == 0)
                 std::_Exit(0);
             return child > 0;
         }},
        {"thread",
         [] {
             pthread_t thread = 0;
             return ::pthread_create(
                        &thread, nullptr, [](void* none) { return none; }, nullptr) == 0;
         }},
        {"signal", [] { return ::kill(::getppid(), 0) == 0; }},
        {"new code",
         [] {
             return ::mmap(nullptr, 4096, PROT_READ | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1,
                           0) != MAP_FAILED;
         }},
    };
    for (const auto& [title, succeeds] : cases) {
        EXPECT_TRUE(succeeds()) << title << " fails by itself";
        EXPECT_EQ(confined(succeeds), 0) << title;
    }
    EXPECT_EQ(confined([] { return ::execl("/bin/true", "true", nullptr) == 0; }), 0);
    EXPECT_EQ(confined([] { return ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0; }), 0);
    ::close(made);
    ::unlink(path);
    ::close(other);
}

TEST(ConfinementTest, LeavesReadingAndPrinting) {
    const int file = ::open("/etc/passwd", O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(confined([&] {
                  char byte = 0;
                  struct stat status = {};
                  return ::read(file, &byte, 1) == 1 && ::fstat(file, &status) == 0 &&
                         ::lseek(file, 0, SEEK_SET) == 0 && ::write(STDERR_FILENO, "", 0) == 0;
              }),
              1);
    ::close(file);
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
TEST(ConfinementTest, EndsWhoTakesTooMuchMemory) {
    EXPECT_EQ(confined([] {
                  const std::size_t much = 600UL * 1024 * 1024;
                  return ::mmap(nullptr, much, PROT_READ | PROT_WRITE,
                                MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0) != MAP_FAILED;
              }),
              0);
}
#endif

} // namespace

} // namespace quillon::testing
