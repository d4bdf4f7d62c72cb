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

    /// Standard error comes first: where we run without standard streams the pipe may have the
    /// number of one of them.
    [[nodiscard]] int plan(int errorPipe, const std::string& workingFolder) {
        error_.note(::posix_spawn_file_actions_adddup2(&actions_, errorPipe, STDERR_FILENO));
        error_.note(
            ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0));
        error_.note(
            ::posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0));
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

std::vector<std::string> arguments(const ProcessRequest& request) {
    std::vector<std::string> all{request.executable};
    all.insert(all.end(), request.arguments.begin(), request.arguments.end());
    return all;
}

std::vector<std::string> environment(const ProcessRequest& request) {
    std::vector<std::string> all;
    for (const auto& [name, value] : request.environment) {
        all.push_back(name + '=' + value);
    }
    for (char** variable = environ; variable && *variable; ++variable) {
        const std::string_view text = *variable;
        const bool replaced = std::ranges::any_of(request.environment, [&](const auto& added) {
            return text.starts_with(added.first + '=');
        });
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

} // namespace

Expected<SpawnedChild> spawnChild(const ProcessRequest& request) {
    std::vector<std::string> argumentTexts = arguments(request);
    std::vector<std::string> environmentTexts = environment(request);
    if (holdsZeroByte(argumentTexts) || holdsZeroByte(environmentTexts) ||
        request.workingFolder.contains('\0')) {
        return std::unexpected(systemError(EINVAL));
    }

    std::array<int, 2> ends = {};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        return systemFailure(errno);
    }
    SpawnedChild child{0, Descriptor(ends[0])};
    const Descriptor writingEnd(ends[1]);
    // Only our end: a child that finds its standard error full has to wait, not to fail.
    if (::fcntl(ends[0], F_SETFL, O_NONBLOCK) != 0) {
        return systemFailure(errno);
    }

    FileActions actions;
    Attributes attributes;
    int error = actions.plan(writingEnd.get(), request.workingFolder);
    if (error == 0) {
        error = attributes.plan();
    }
    if (error == 0) {
        error =
            ::posix_spawn(&child.pid, request.executable.c_str(), actions.get(), attributes.get(),
                          pointers(argumentTexts).data(), pointers(environmentTexts).data());
    }
    if (error != 0) {
        return std::unexpected(systemError(error));
    }
    return child;
}

} // namespace quillon
