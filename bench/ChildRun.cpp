#include "ChildRun.h"

#include <chrono>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon::bench {

ChildRun runChild(const std::vector<std::string>& command) {
    std::vector<char*> arguments;
    for (const std::string& word : command)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);

    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);

    const auto start = std::chrono::steady_clock::now();
    pid_t child = 0;
    const int failed =
        posix_spawn(&child, arguments.front(), &files, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    int status = 0;
    rusage usage{};
    if (failed != 0 || wait4(child, &status, 0, &usage) != child)
        return {};
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    return {.milliseconds = took.count(),
            .peakKilobytes = usage.ru_maxrss,
            .exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status)};
}

} // namespace quillon::bench
