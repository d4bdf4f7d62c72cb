#include "platform/linux/LinuxProcesses.h"
#include "support/PrintQt.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <thread>
#include <unistd.h>

namespace quillon::testing {

namespace {

using namespace std::chrono_literals;
using End = ProcessResult::End;

ProcessRequest script(const char* text) {
    ProcessRequest request;
    request.executable = "/bin/sh";
    request.arguments = {"-c", text, "quillon", "it's a $HOME `file`.txt"};
    return request;
}

Expected<ProcessResult> run(const ProcessRequest& request) {
    return LinuxProcesses().run(request);
}

/// False, too, for one that has ended and that nobody has reaped yet.
bool isRunning(const QByteArray& pid) {
    QFile status(QStringLiteral("/proc/%1/stat").arg(QString::fromUtf8(pid.trimmed())));
    return status.open(QIODevice::ReadOnly) && !status.readAll().contains(") Z ");
}

class SteadyTimer {
public:
    [[nodiscard]] std::chrono::duration<double> elapsed() const {
        return std::chrono::steady_clock::now() - start_;
    }

private:
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

TEST(ProcessesTest, TellsHowTheChildEnded) {
    const struct {
        const char* script;
        End end;
        int status;
        const char* errorOutput;
    } cases[] = {
        {"exit 0", End::exited, 0, ""},
        {"echo unheard; exit 3", End::exited, 3, ""},
        {"printf '\\n  no café today \\n\\n' >&2; exit 1", End::exited, 1, "no café today"},
        {"echo heard >&2", End::exited, 0, "heard"},
        {"kill -KILL $$", End::signalled, SIGKILL, ""},
        {"read line; exit $?", End::exited, 1, ""},
        {"echo \"$1 $FILE $0\" >&2", End::exited, 0, "it's a $HOME `file`.txt /a=b.txt quillon"},
        {"pwd >&2", End::exited, 0, "/proc"},
        {"echo $PATH >&2", End::exited, 0, "/only"},
    };
    for (const auto& [text, end, status, errorOutput] : cases) {
        SCOPED_TRACE(text);
        ProcessRequest request = script(text);
        request.environment = {{"FILE", "/a=b.txt"}, {"PATH", "/only"}};
        request.workingFolder = "/proc";
        const auto result = run(request);
        ASSERT_TRUE(result);
        EXPECT_EQ(result->end, end);
        EXPECT_EQ(result->status, status);
        EXPECT_EQ(result->errorOutput, QString::fromUtf8(errorOutput));
        EXPECT_EQ(result->succeeded(), end == End::exited && status == 0);
    }
}

TEST(ProcessesTest, SaysWhyAChildCannotStart) {
    const struct {
        const char* executable;
        const char* folder;
        ErrorKind kind;
        const char* message;
    } cases[] = {
        {"/nowhere/tool", "", ErrorKind::notFound, "No such file or directory"},
        {"/etc/passwd", "", ErrorKind::permissionDenied, "Permission denied"},
        {"/bin/true", "/nowhere", ErrorKind::notFound, "No such file or directory"},
    };
    for (const auto& [executable, folder, kind, message] : cases) {
        ProcessRequest request;
        request.executable = executable;
        request.workingFolder = folder;
        const auto result = run(request);
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error(), (Error{kind, QString::fromUtf8(message)}));
    }
}

TEST(ProcessesTest, RunsNoScriptCutShort) {
    ProcessRequest request = script("");
    request.arguments[1] = std::string("true\0; exit 1", 13);
    EXPECT_FALSE(run(request));
}

TEST(ProcessesTest, HandsDownNoDescriptorAndNoSignalSetting) {
    const int leaked = ::open("/dev/null", O_RDONLY); // deliberately without O_CLOEXEC
    ::dup2(leaked, 57);
    sigset_t blocked;
    sigset_t before;
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGTERM);
    ::pthread_sigmask(SIG_BLOCK, &blocked, &before);
    const auto handler = ::signal(SIGHUP, SIG_IGN);

    const auto result = run(script("[ ! -e /proc/$$/fd/57 ] || echo descriptor >&2;"
                                   "kill -HUP $$; echo ignored >&2;"));
    const auto masked = run(script("kill -TERM $$; echo blocked >&2;"));
    const auto grouped = run(script("[ $(cut -d' ' -f5 /proc/$$/stat) = $$ ]"));

    ::signal(SIGHUP, handler);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    ::close(57);
    ::close(leaked);
    ASSERT_TRUE(result && masked && grouped);
    EXPECT_EQ(result->errorOutput, QString());
    EXPECT_EQ(result->status, SIGHUP);
    EXPECT_EQ(masked->status, SIGTERM);
    EXPECT_TRUE(grouped->succeeded()) << "no process group of its own";
}

TEST(ProcessesTest, KeepsTheFirst64KilobytesOfErrorsAndReadsTheRest) {
    // An odd number of bytes before two-byte letters: the cut goes through one.
    const auto result =
        run(script("(printf x; yes éééé | head -c 3000000) >&2; echo done >&2; exit 4"));
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 4);
    EXPECT_TRUE(result->errorOutput.startsWith(u"xéééé"));
    EXPECT_FALSE(result->errorOutput.contains(QChar(QChar::ReplacementCharacter)));
    EXPECT_GT(result->errorOutput.toUtf8().size(), 65530);
    EXPECT_LE(result->errorOutput.toUtf8().size(), 65536);
}

TEST(ProcessesTest, LeavesTheBackgroundOfAnEndedScriptAlone) {
    const SteadyTimer timer;
    const auto result = run(script("sleep 20 & echo $! >&2; exit 5"));
    EXPECT_LT(timer.elapsed(), 5s);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 5);
    const QByteArray background = result->errorOutput.toUtf8();
    EXPECT_TRUE(isRunning(background));
    ::kill(background.toInt(), SIGKILL);
}

TEST(ProcessesTest, EndsTheWholeGroupWhenTimeIsUpOrSomebodySaysSo) {
    // Long enough for a busy machine to have started both processes.
    constexpr auto enough = 500ms;
    SteadyTimer sinceStart;
    const struct {
        const char* title;
        std::chrono::milliseconds timeout;
        std::function<bool()> mayContinue;
        End end;
    } cases[] = {
        {"timeout", enough, [] { return true; }, End::timedOut},
        {"stopped", 0ms, [&] { return sinceStart.elapsed() < enough; }, End::stopped},
    };
    for (const auto& [title, timeout, mayContinue, end] : cases) {
        SCOPED_TRACE(title);
        sinceStart = SteadyTimer();
        ProcessRequest request = script("sleep 20 & echo $! >&2; wait");
        request.timeout = timeout;
        request.mayContinue = mayContinue;
        const auto result = run(request);
        ASSERT_TRUE(result);
        EXPECT_EQ(result->end, end);
        EXPECT_LT(sinceStart.elapsed(), enough + 1900ms) << "the grace is for those who need it";
        ASSERT_FALSE(result->errorOutput.isEmpty());
        // A process that nobody waits for any more is gone when init has noticed.
        while (isRunning(result->errorOutput.toUtf8()) && sinceStart.elapsed() < 10s)
            std::this_thread::sleep_for(5ms);
        EXPECT_FALSE(isRunning(result->errorOutput.toUtf8()));
    }
}

TEST(ProcessesTest, KillsWhoeverIgnoresTheRequestToEnd) {
    const SteadyTimer timer;
    ProcessRequest request = script("trap '' TERM; while :; do sleep 20; done");
    request.timeout = 100ms;
    const auto result = run(request);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->end, End::timedOut);
    EXPECT_EQ(result->status, SIGKILL);
    EXPECT_GE(timer.elapsed(), 2s);
    EXPECT_LT(timer.elapsed(), 10s);
}

} // namespace

} // namespace quillon::testing
