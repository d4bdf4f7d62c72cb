#include "support/InstanceBench.h"

#include <QAbstractEventDispatcher>
#include <QTimer>
#include <gmock/gmock.h>

#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace quillon::testing {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using namespace std::string_literals;
using ::testing::HasSubstr;

std::ptrdiff_t openDescriptors() {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
}

/// Repeats its arguments and its input, and fails as the first argument says.
ExitCode echo(const std::vector<std::string>& arguments, const Console& console) {
    console.out << console.workingFolder << (console.colored ? " colored" : " plain");
    for (const std::string& argument : arguments)
        console.out << ' ' << argument;
    console.err << "aside";
    if (arguments.back() == "-")
        console.out << console.in.rdbuf();
    if (arguments.back() == "--secret")
        console.out << ' ' << console.secretLine("Key: ").value_or("none");
    return arguments.front() == "fail" ? ExitCode::someFailed : ExitCode::done;
}

/// Goes on until it is told to stop.
ExitCode untilStopped(const std::vector<std::string>& /*arguments*/, const Console& console) {
    while (console.mayContinue())
        std::this_thread::sleep_for(1ms);
    console.out << "stopped";
    return ExitCode::someFailed;
}

/// A listener that takes calls and never says anything, as a hung instance does.
LocalListener deafListener(const UserFolders& folders) {
    return std::move(*LocalListener::listen(controlSocketPath(folders)));
}

TEST(CommandServer, passesStreamsArgumentsAndTheExitCodeOn) {
    InstanceBench bench;
    ASSERT_TRUE(bench.start(echo));
    const std::string large(300'000, 'x');
    const struct {
        std::vector<std::string> arguments;
        std::string input;
        ExitCode code;
        std::string out;
    } cases[] = {
        {{"log", "--json"}, "unread", ExitCode::done, " log --json"},
        {{"fail", "caf\xE9 \xFF\n"}, "", ExitCode::someFailed, " fail caf\xE9 \xFF\n"},
        {{"check", ""}, "", ExitCode::done, " check "},
        {{"check", "-"}, "", ExitCode::done, " check -"},
        {{"check", "-"}, large, ExitCode::done, " check -" + large},
        {{"--secret"}, "a key\nmore\n", ExitCode::done, " --secret a key"},
        {{"--secret"}, "\n", ExitCode::done, " --secret "},
        {{"--secret"}, "", ExitCode::done, " --secret none"},
    };
    for (const auto& [arguments, input, code, out] : cases) {
        const auto result = bench.serve(arguments, input);
        EXPECT_EQ(result.code, code);
        EXPECT_EQ(result.out, bench.scratch.root() + " colored" + out);
        EXPECT_EQ(result.err, "aside");
    }
}

TEST(CommandServer, isOnlyForItsUserAndItsData) {
    InstanceBench bench;
    ASSERT_TRUE(bench.start(echo));
    struct stat status = {};
    ASSERT_EQ(::stat(controlSocketPath(bench.folders).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
    EXPECT_FALSE(bench.serve({"log"}, {}, {.user = thisUser() + 1}).code)
        << "a socket of somebody else must not be trusted";
    bench.folders.data = "/elsewhere";
    EXPECT_FALSE(bench.serve({"log"}).code);

    InstanceBench other;
    ASSERT_TRUE(other.start(echo, thisUser() + 1));
    EXPECT_FALSE(other.serve({"log"}).code) << "a caller of another user must not get through";
}

TEST(CommandServer, takesTheNameOnlyFromWhoIsGone) {
    InstanceBench bench;
    EXPECT_FALSE(bench.call({"log"}).code) << "nobody is there";
    ASSERT_TRUE(bench.start(echo));
    InstanceBench second;
    second.folders.runtime = bench.folders.runtime;
    EXPECT_EQ(second.start(echo).error().kind, ErrorKind::alreadyExists);
    bench.stop();
    EXPECT_FALSE(fs::exists(controlSocketPath(bench.folders)));

    const std::string path = controlSocketPath(second.folders);
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const Descriptor stale(::socket(AF_UNIX, SOCK_STREAM, 0));
    ASSERT_EQ(::bind(stale.get(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    EXPECT_FALSE(second.call({"log"}).code) << "nobody listens";
    ASSERT_TRUE(second.start(echo));
    EXPECT_EQ(second.serve({"log"}).code, ExitCode::done);
    second.stop();

    second.folders.runtime = second.scratch.makeFolder(std::string(120, 'd'));
    EXPECT_THAT(second.start(echo).error().message.toStdString(), HasSubstr("XDG_RUNTIME_DIR"));
    second.folders.runtime = second.scratch.root();
    second.scratch.write("quillon.sock", "mine");
    EXPECT_FALSE(second.start(echo));
}

TEST(CommandServer, countsAsHungWhenItSaysNothing) {
    InstanceBench bench;
    const LocalListener deaf = deafListener(bench.folders);
    const auto began = std::chrono::steady_clock::now();
    const auto result = bench.call({"log"}, {}, {.patience = 300ms});
    EXPECT_EQ(result.code, ExitCode::unreachable);
    EXPECT_THAT(result.err, HasSubstr("doesn't answer"));
    EXPECT_GE(std::chrono::steady_clock::now() - began, 300ms);
}

TEST(CommandServer, showsThatItIsWellWhileACommandTakesLong) {
    InstanceBench bench;
    ASSERT_TRUE(bench.start([](const auto&, const Console&) {
        std::this_thread::sleep_for(2500ms);
        return ExitCode::done;
    }));
    EXPECT_EQ(bench.serve({"run"}, {}, {.patience = 1800ms}).code, ExitCode::done);
}

TEST(CommandServer, endsACommandThatNobodyWantsAnyMore) {
    InstanceBench bench;
    std::promise<void> ended;
    ASSERT_TRUE(bench.start([&](const auto& arguments, const Console& console) {
        const ExitCode code = untilStopped(arguments, console);
        if (arguments[0] == "vanish")
            ended.set_value();
        return code;
    }));
    const auto cancelled =
        bench.whileServing([&] { return bench.call({"run"}, {}, {}, [] { return false; }); });
    EXPECT_EQ(cancelled.code, ExitCode::someFailed);
    EXPECT_EQ(cancelled.out, "stopped");

    bench.whileServing([&] {
        {
            auto socket = LocalSocket::connect(controlSocketPath(bench.folders), 1s);
            EXPECT_TRUE(socket && socket->receive(5s));
            EXPECT_TRUE(socket->send(encodeFrame(
                FrameType::request, packRequest({.workingFolder = "/", .arguments = {"vanish"}}))));
        }
        return ended.get_future().wait_for(10s);
    });
    // Ending the server ends those that are still at work.
    std::thread left([&] { EXPECT_EQ(bench.call({"run"}).code, ExitCode::someFailed); });
    bench.whileServing([] { return std::this_thread::sleep_for(200ms), 0; });
    bench.stop();
    left.join();
}

TEST(CommandServer, survivesGarbageAndLeavesNothingBehind) {
    InstanceBench bench;
    ASSERT_TRUE(bench.start(echo));
    const std::string garbage[] = {
        "",
        "\0\0\0"s,
        "GET / HTTP/1.1\r\n\r\n",
        "\xFF\xFF\xFF\xFF\x10"s,
        encodeFrame(FrameType::request, "\xFF\xFF\xFF\xFF"),
        encodeFrame(FrameType::request, packTexts({"relative", "", "", "log"})),
        encodeFrame(FrameType::cancel),
        encodeFrame(FrameType::request, packRequest({.workingFolder = "/", .arguments = {"x"}})) +
            std::string(100'000, 'z')};
    EXPECT_EQ(bench.serve({"log"}).code, ExitCode::done);
    const auto before = openDescriptors();
    bench.whileServing([&] {
        for (int i = 0; i < 1000; ++i) {
            auto socket = LocalSocket::connect(controlSocketPath(bench.folders), 5s);
            EXPECT_TRUE(socket) << i;
            if (socket)
                std::ignore = socket->send(garbage[std::size_t(i) % std::size(garbage)]);
        }
        return 0;
    });
    EXPECT_EQ(bench.serve({"log"}).code, ExitCode::done);
    for (int i = 0; i < 100 && openDescriptors() > before; ++i)
        bench.whileServing([] { return std::this_thread::sleep_for(50ms), 0; });
    EXPECT_LE(openDescriptors(), before);
}

TEST(CommandServer, waitsForDescriptorsWithoutSpinning) {
    InstanceBench bench;
    ASSERT_TRUE(bench.start(echo));
    auto socket = LocalSocket::connect(controlSocketPath(bench.folders), 1s);
    ASSERT_TRUE(socket);
    rlimit before = {};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const int next = ::dup(0);
    ::close(next);
    const rlimit none{rlim_t(next), before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    int wakings = 0;
    const auto counting = QObject::connect(QAbstractEventDispatcher::instance(),
                                           &QAbstractEventDispatcher::awake, [&] { ++wakings; });
    QEventLoop loop;
    QTimer::singleShot(300ms, &loop, &QEventLoop::quit);
    loop.exec();
    QObject::disconnect(counting);
    EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_LT(wakings, 50);
    EXPECT_TRUE(bench.whileServing([&] { return socket->receive(5s); })) << "its turn has come";
}

TEST(CommandServer, carriesSeveralCommandsOutAtOnceAndWaitsForNobodyWhoReadsSlowly) {
    InstanceBench bench;
    ASSERT_TRUE(bench.start([](const auto& arguments, const Console& console) {
        const std::string line(1000, 'y');
        for (int i = 0; i < 50'000 && arguments[0] == "flood" && console.out; ++i)
            console.out << line;
        return arguments[0] == "flood" ? ExitCode::done : echo(arguments, console);
    }));
    bench.whileServing([&] {
        auto slow = LocalSocket::connect(controlSocketPath(bench.folders), 1s);
        EXPECT_TRUE(slow && slow->send(encodeFrame(
                                FrameType::request,
                                packRequest({.workingFolder = "/", .arguments = {"flood"}}))));
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(bench.call({"log"}).code, ExitCode::done);
        return 0;
    });
}

} // namespace
} // namespace quillon::testing
