#pragma once

#include "platform/Error.h"

#include <QString>

#include <chrono>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace quillon {

struct ProcessRequest {
    std::string executable; ///< absolute path
    std::vector<std::string> arguments;
    std::vector<std::pair<std::string, std::string>> environment; ///< added to our own
    std::string workingFolder;                                    ///< empty: our own
    std::chrono::milliseconds timeout{0};                         ///< 0: none
    /// Asked a few times a second; false ends the process group.
    std::function<bool()> mayContinue;
};

struct ProcessResult {
    enum class End { exited, signalled, timedOut, stopped };
    End end = End::exited;
    int status = 0;      ///< exit status, or the signal's number
    QString errorOutput; ///< what it printed on standard error, trimmed, at most 64 KiB

    [[nodiscard]] bool succeeded() const { return end == End::exited && status == 0; }
};

/// Child processes, each in a process group of its own, standard input and output on the null
/// device. Any thread; blocks until the child has ended.
class Processes {
public:
    virtual ~Processes() = default;

    /// Fails only when the process can't be started, with the system's description.
    [[nodiscard]] virtual Expected<ProcessResult> run(const ProcessRequest& request) = 0;
};

} // namespace quillon
