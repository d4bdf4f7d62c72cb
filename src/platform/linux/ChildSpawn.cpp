#include "platform/linux/ChildSpawn.h"

#include "platform/linux/SystemError.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

namespace quillon {

namespace {

/// The first error among several steps. posix_spawn and its relatives return errno values.
class FirstError {
public:
    void note(int result) {
        if (error_ == 0) {
            error_ = result;
        }
    }
    [[nodiscard]] int get() const { return error_; }

private:
    int error_ = 0;
};

class FileActions {
public:
    FileActions() { error_.note(::posix_spawn_file_actions_init(&actions_)); }
    ~FileActions() { ::posix_spawn_file_actions_destroy(&actions_); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;

    [[nodiscard]] int plan(std::array<int, 3> streams, const std::string& workingFolder) {
        for (int stream = 0; stream < 3; ++stream) {
            const int given = streams[static_cast<std::size_t>(stream)];
            if (given < 0) {
                error_.note(::posix_spawn_file_actions_addopen(
                    &actions_, stream, "/dev/null", stream == 0 ? O_RDONLY : O_WRONLY, 0));
            } else {
                error_.note(::posix_spawn_file_actions_adddup2(&actions_, given, stream));
            }
        }
        error_.note(::posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1));
        if (!workingFolder.empty()) {
            error_.note(::posix_spawn_file_actions_addchdir_np(&actions_, workingFolder.c_str()));
        }
        return error_.get();
    }

    [[nodiscard]] const posix_spawn_file_actions_t* get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_ = {};
    FirstError error_;
};

class Attributes {
public:
    Attributes() { error_.note(::posix_spawnattr_init(&attributes_)); }
    ~Attributes() { ::posix_spawnattr_destroy(&attributes_); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;

    [[nodiscard]] int plan() {
        sigset_t none;
        sigset_t all;
        ::sigemptyset(&none);
        ::sigfillset(&all);
        error_.note(::posix_spawnattr_setflags(
            &attributes_, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF));
        error_.note(::posix_spawnattr_setpgroup(&attributes_, 0));
        error_.note(::posix_spawnattr_setsigmask(&attributes_, &none));
        error_.note(::posix_spawnattr_setsigdefault(&attributes_, &all));
        return error_.get();
    }

    [[nodiscard]] const posix_spawnattr_t* get() const { return &attributes_; }

private:
    posix_spawnattr_t attributes_ = {};
    FirstError error_;
};

std::vector<std::string>
ourEnvironmentWith(const std::vector<std::pair<std::string, std::string>>& added) {
    std::vector<std::string> all;
    for (const auto& [name, value] : added) {
        all.push_back(name + '=' + value);
    }
    for (char** variable = environ; variable && *variable; ++variable) {
        const std::string_view text = *variable;
        const bool replaced = std::ranges::any_of(
            added, [&](const auto& one) { return text.starts_with(one.first + '='); });
        if (!replaced) {
            all.emplace_back(text);
        }
    }
    return all;
}

std::vector<char*> pointers(std::vector<std::string>& strings) {
    std::vector<char*> all;
    for (std::string& string : strings) {
        all.push_back(string.data());
    }
    all.push_back(nullptr);
    return all;
}

/// The system would cut such a text short without a word, and half a script is another script.
bool holdsZeroByte(const std::vector<std::string>& strings) {
    return std::ranges::any_of(strings,
                               [](const std::string& text) { return text.contains('\0'); });
}

/// Descriptors for the child's three streams, none of which has the number of another stream: where
/// we run without standard streams, a pipe may have got one.
class Streams {
public:
    [[nodiscard]] int plan(const ChildPlan& plan) {
        const std::array given{plan.input, plan.output, plan.errorOutput};
        for (std::size_t i = 0; i < given.size(); ++i) {
            numbers_[i] = given[i];
            if (given[i] >= 0 && given[i] <= STDERR_FILENO) {
                moved_[i] = Descriptor(::fcntl(given[i], F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
                if (!moved_[i].isOpen()) {
                    return errno;
                }
                numbers_[i] = moved_[i].get();
            }
        }
        return 0;
    }

    [[nodiscard]] const std::array<int, 3>& numbers() const { return numbers_; }

private:
    std::array<int, 3> numbers_ = {};
    std::array<Descriptor, 3> moved_;
};

} // namespace

Expected<pid_t> startChild(const ChildPlan& plan) {
    std::vector<std::string> arguments{plan.executable};
    arguments.insert(arguments.end(), plan.arguments.begin(), plan.arguments.end());
    std::vector<std::string> environment = plan.environment;
    if (holdsZeroByte(arguments) || holdsZeroByte(environment) ||
        plan.workingFolder.contains('\0')) {
        return std::unexpected(systemError(EINVAL));
    }
    Streams streams;
    FileActions actions;
    Attributes attributes;
    int error = streams.plan(plan);
    if (error == 0) {
        error = actions.plan(streams.numbers(), plan.workingFolder);
    }
    if (error == 0) {
        error = attributes.plan();
    }
    pid_t pid = 0;
    if (error == 0) {
        error = ::posix_spawn(&pid, plan.executable.c_str(), actions.get(), attributes.get(),
                              pointers(arguments).data(), pointers(environment).data());
    }
    if (error != 0) {
        return std::unexpected(systemError(error));
    }
    return pid;
}

Expected<SpawnedChild> spawnChild(const ProcessRequest& request) {
    Expected<Pipe> pipe = openPipe();
    if (!pipe) {
        return std::unexpected(pipe.error());
    }
    const Expected<pid_t> pid = startChild({.executable = request.executable,
                                            .arguments = request.arguments,
                                            .environment = ourEnvironmentWith(request.environment),
                                            .workingFolder = request.workingFolder,
                                            .errorOutput = pipe->writingEnd.get()});
    if (!pid) {
        return std::unexpected(pid.error());
    }
    return SpawnedChild{*pid, std::move(pipe->readingEnd)};
}

Expected<Pipe> openPipe() {
    std::array<int, 2> ends = {};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        return systemFailure(errno);
    }
    Pipe pipe{.readingEnd = Descriptor(ends[0]), .writingEnd = Descriptor(ends[1])};
    // Only our end: a child that finds the pipe full has to wait, not to fail.
    if (::fcntl(ends[0], F_SETFL, O_NONBLOCK) != 0) {
        return systemFailure(errno);
    }
    return pipe;
}

} // namespace quillon
