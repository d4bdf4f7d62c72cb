#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <string>

namespace quillon::testing {

/// What the system says about a running process.
struct ProcessFigures {
    long residentKilobytes = 0;
    long descriptors = 0;
    long threads = 0;
    long wakeUps = 0; ///< times that one of its threads went to sleep, since its start
};

/// The real `quillon agent` in a home of its own, and the real command beside it.
class RunningAgent {
public:
    /// What a command ended with.
    struct Answer {
        int code = -1;
        std::string out;
        std::string err;
    };

    RunningAgent(QString program, std::string home);
    /// Kills what still runs.
    ~RunningAgent();
    RunningAgent(const RunningAgent&) = delete;
    RunningAgent& operator=(const RunningAgent&) = delete;

    /// Starts it and returns once it answers; false when it doesn't within the patience.
    [[nodiscard]] bool start(std::chrono::milliseconds patience = std::chrono::seconds(20));
    /// Asks it to end and returns its exit code; -1 when it had to be killed.
    int stop();
    /// As a power cut would.
    void kill();

    Answer command(const QStringList& arguments);

    [[nodiscard]] ProcessFigures figures() const;
    [[nodiscard]] qint64 processId() const { return process_.processId(); }
    /// What it has said on standard error.
    [[nodiscard]] std::string said() const;

    [[nodiscard]] QProcessEnvironment environment() const;

private:
    [[nodiscard]] std::string log() const { return home_ + "/agent.log"; }

    QString program_;
    std::string home_;
    QProcess process_;
};

/// Whether the condition comes true within the patience; looks every few milliseconds.
[[nodiscard]] bool comesTrue(const std::function<bool()>& condition,
                             std::chrono::milliseconds patience);

} // namespace quillon::testing
