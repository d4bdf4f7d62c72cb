// Measures an agent with much to remember: its start, its rest, how soon a file is in its place, a
// save, and what the hundred and first rule costs.
//   measure-agent QUILLON HOME [REST-SECONDS]      HOME is an empty folder

#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/LinuxStorage.h"
#include "platform/linux/SystemClock.h"
#include "store/StoreSession.h"
#include "support/RunningAgent.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

namespace quillon::bench {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::RunningAgent;
using Clock = std::chrono::steady_clock;

namespace fs = std::filesystem;

constexpr int folderCount = 20;
constexpr int rulesPerFolder = 10;
constexpr int turns = 21;
constexpr double debounceMilliseconds = 800;

double millisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

[[noreturn]] void fail(const std::string& what) {
    std::fprintf(stderr, "measure-agent: %s\n", what.c_str());
    std::exit(1);
}

/// One row of the table; true when the figure is within its limit.
bool row(const char* work, double figure, double limit, const char* unit) {
    const bool held = figure <= limit;
    std::printf("| %-44s | %8.2f %-2s | %6.0f %-2s | %-4s |\n", work, figure, unit, limit, unit,
                held ? "yes" : "NO");
    return held;
}

Rule filing(int number, const std::string& home) {
    return {.name = u"Rule %1"_s.arg(number),
            .conditions = {{.attribute = ConditionAttribute::extension,
                            .op = MatchOperator::is,
                            .value = number == 0 ? u"txt"_s : u"e%1"_s.arg(number)}},
            .actions = {{.type = ActionType::move,
                         .destination = QString::fromStdString(home + "/Filed")}}};
}

PersistedState muchToRemember(const std::string& home, Timestamp now) {
    PersistedState state;
    for (int i = 0; i < folderCount; ++i) {
        WatchedFolder folder{.path = QString::fromStdString(home) + u"/Folder %1"_s.arg(i)};
        for (int rule = 0; rule < rulesPerFolder; ++rule)
            folder.rules.push_back(filing(rule, home));
        state.folders.push_back(std::move(folder));
    }
    for (std::size_t i = 0; i < logCap; ++i)
        state.logs.push_back({.date = now,
                              .fileName = u"Invoice %1 from somebody.pdf"_s.arg(i),
                              .ruleName = u"File invoices"_s,
                              .actionSummary = u"moved to Invoices"_s,
                              .folderName = u"Downloads"_s,
                              .folderID = state.folders[0].id,
                              .undoable = true,
                              .originalPath = u"/home/somebody/Downloads/%1.pdf"_s.arg(i),
                              .currentPath = u"/home/somebody/Invoices/%1.pdf"_s.arg(i)});
    return state;
}

void makeFolders(const std::string& home) {
    for (int i = 0; i < folderCount; ++i)
        fs::create_directories(home + "/Folder " + std::to_string(i));
    fs::create_directories(home + "/Filed");
}

/// Writes the state that the agent will find, over and over, and returns what a save takes.
double measureSave(const std::string& home) {
    LinuxFileSystem fileSystem{"bench"};
    LinuxStorage storage;
    SystemClock clock;
    auto session = StoreSession::open(
        StorePlaces(home + "/data/Quillon"),
        {.storage = storage,
         .fileSystem = fileSystem,
         .clock = clock,
         .pause = [](std::chrono::milliseconds) {},
         .trashPlaces = [](const std::string&) { return std::vector<std::string>{}; },
         .temporaryTag = "bench"});
    if (!session)
        fail(session.error().message.toStdString());
    (*session)->state() = muchToRemember(home, clock.now());
    std::vector<double> times;
    for (int turn = 0; turn < turns; ++turn) {
        (*session)->state().logs[0].fileName = QString::number(turn);
        const auto start = Clock::now();
        if (const auto saved = (*session)->save(); !saved)
            fail(saved.error().message.toStdString());
        times.push_back(millisecondsSince(start));
    }
    return median(times);
}

double measureStart(const std::string& quillon, const std::string& home) {
    std::vector<double> times;
    for (int turn = 0; turn < turns; ++turn) {
        RunningAgent agent(QString::fromStdString(quillon), home);
        const auto start = Clock::now();
        if (!agent.start())
            fail("the agent does not start: " + agent.said());
        times.push_back(millisecondsSince(start));
        agent.stop();
    }
    return median(times);
}

/// From the rename that brings an old file into a folder to its being in its place.
double measureFiling(const std::string& home) {
    std::vector<double> times;
    for (int turn = 0; turn < turns; ++turn) {
        const std::string name = "file " + std::to_string(turn) + ".txt";
        const std::string made = home + "/" + name;
        std::fclose(std::fopen(made.c_str(), "w"));
        fs::last_write_time(made, fs::file_time_type::clock::now() - std::chrono::hours(1));
        std::this_thread::sleep_for(std::chrono::milliseconds(1500));
        const auto start = Clock::now();
        fs::rename(made, home + "/Folder 3/" + name);
        if (!testing::comesTrue([&] { return fs::exists(home + "/Filed/" + name); },
                                std::chrono::seconds(20)))
            fail(name + " was not filed");
        times.push_back(millisecondsSince(start));
    }
    return median(times);
}

struct RuleCosts {
    double early = 0;
    double late = 0;
};

/// Of the 2nd to 12th and the 101st to 111th rule of a folder, by the command.
RuleCosts measureRules(RunningAgent& agent, const std::string& home) {
    const QString folder = QString::fromStdString(home + "/Ruled");
    fs::create_directories(home + "/Ruled");
    agent.command({u"folder"_s, u"add"_s, folder});
    std::vector<double> times;
    for (int number = 1; number <= 111; ++number) {
        const auto start = Clock::now();
        const auto answer = agent.command(
            {u"rule"_s, u"add"_s, u"--folder"_s, folder, u"--name"_s, u"Rule %1"_s.arg(number),
             u"--if"_s, u"extension is e%1"_s.arg(number), u"--then"_s, u"tag red"_s});
        times.push_back(millisecondsSince(start));
        if (answer.code != 0)
            fail("a rule was refused: " + answer.err);
    }
    return {.early = median({times.begin() + 1, times.begin() + 12}),
            .late = median({times.begin() + 100, times.begin() + 111})};
}

bool measureAll(const std::string& quillon, const std::string& home, int restSeconds) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    std::printf("| %-44s | %11s | %9s | %-4s |\n|---|---|---|---|\n",
                "20 folders, 200 rules, 500 log entries", "figure", "limit", "held");
    makeFolders(home);
    bool held = row("a save", measureSave(home), 20, "ms");
    held &= row("start of the agent, to its first answer", measureStart(quillon, home), 100, "ms");

    RunningAgent agent(QString::fromStdString(quillon), home);
    if (!agent.start())
        fail("the agent does not start: " + agent.said());
    std::this_thread::sleep_for(std::chrono::seconds(5));
    const testing::ProcessFigures before = agent.figures();
    held &= row("resident memory at rest", double(before.residentKilobytes) * 1024 / 1e6, 24, "MB");
    std::this_thread::sleep_for(std::chrono::seconds(restSeconds));
    const double minutes = restSeconds / 60.0;
    held &= row("wake-ups a minute at rest",
                double(agent.figures().wakeUps - before.wakeUps) / minutes, 2, "");
    held &= row("file dropped to file in place, less 0.8 s",
                measureFiling(home) - debounceMilliseconds, 50, "ms");
    const RuleCosts rules = measureRules(agent, home);
    held &= row("the 101st rule against the 2nd", rules.late / rules.early, 1.5, "x");
    std::printf("\nA rule takes %.1f ms at first, %.1f ms past the hundredth.\n", rules.early,
                rules.late);
    return held;
}

} // namespace
} // namespace quillon::bench

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: measure-agent QUILLON HOME [REST-SECONDS]\n");
        return 2;
    }
    const QCoreApplication application(argc, argv);
    return quillon::bench::measureAll(argv[1], argv[2], argc > 3 ? std::atoi(argv[3]) : 180) ? 0
                                                                                             : 1;
}
