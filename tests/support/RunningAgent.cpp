#include "support/RunningAgent.h"

#include <QProcessEnvironment>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;

namespace fs = std::filesystem;

namespace {

long fieldOf(const fs::path& file, std::string_view name) {
    std::ifstream status(file);
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(name))
            return std::atol(line.c_str() + name.size());
    return 0;
}

} // namespace

RunningAgent::RunningAgent(QString program, std::string home)
    : program_(std::move(program)), home_(std::move(home)) {
    fs::create_directories(home_ + "/run");
    fs::permissions(home_ + "/run", fs::perms::owner_all);
    process_.setProcessEnvironment(environment());
    // A pipe that nobody empties would hold it up once it is full.
    process_.setStandardErrorFile(QString::fromStdString(log()), QIODevice::Append);
}

RunningAgent::~RunningAgent() {
    kill();
}

QProcessEnvironment RunningAgent::environment() const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString home = QString::fromStdString(home_);
    environment.insert(u"HOME"_s, home);
    environment.insert(u"XDG_DATA_HOME"_s, home + u"/data"_s);
    environment.insert(u"XDG_CONFIG_HOME"_s, home + u"/config"_s);
    environment.insert(u"XDG_RUNTIME_DIR"_s, home + u"/run"_s);
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path="_s + home + u"/run/no-bus"_s);
    return environment;
}

bool RunningAgent::start(std::chrono::milliseconds patience) {
    process_.start(program_, {u"agent"_s});
    if (!process_.waitForStarted())
        return false;
    const std::string socket = home_ + "/run/quillon.sock";
    return comesTrue([&] { return fs::exists(socket); }, patience) &&
           comesTrue([&] { return command({u"status"_s}).code == 0; }, patience);
}

int RunningAgent::stop() {
    process_.terminate();
    if (process_.waitForFinished(20'000))
        return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
    kill();
    return -1;
}

void RunningAgent::kill() {
    if (process_.state() == QProcess::NotRunning)
        return;
    process_.kill();
    process_.waitForFinished();
}

RunningAgent::Answer RunningAgent::command(const QStringList& arguments) {
    QProcess command;
    command.setProcessEnvironment(environment());
    command.start(program_, arguments);
    command.closeWriteChannel();
    command.waitForFinished(60'000);
    return {.code = command.exitStatus() == QProcess::NormalExit ? command.exitCode() : -1,
            .out = command.readAllStandardOutput().toStdString(),
            .err = command.readAllStandardError().toStdString()};
}

ProcessFigures RunningAgent::figures() const {
    const fs::path process = "/proc/" + std::to_string(process_.processId());
    ProcessFigures figures;
    figures.residentKilobytes = fieldOf(process / "status", "VmRSS:");
    figures.threads = fieldOf(process / "status", "Threads:");
    std::error_code ignored;
    figures.descriptors =
        std::distance(fs::directory_iterator(process / "fd", ignored), fs::directory_iterator());
    for (const auto& thread : fs::directory_iterator(process / "task", ignored))
        figures.wakeUps += fieldOf(thread.path() / "status", "voluntary_ctxt_switches:");
    return figures;
}

std::string RunningAgent::said() const {
    std::ostringstream text;
    text << std::ifstream(log()).rdbuf();
    return text.str();
}

bool comesTrue(const std::function<bool()>& condition, std::chrono::milliseconds patience) {
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}

} // namespace quillon::testing
