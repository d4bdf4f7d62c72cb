#include "support/RunningAgent.h"
#include "support/ScratchFolder.h"

#include <QByteArray>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <random>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using Clock = std::chrono::steady_clock;

namespace fs = std::filesystem;

constexpr int folderCount = 20;

/// QUILLON_SOAK_SECONDS makes it longer: an hour is 3600.
std::chrono::seconds duration() {
    bool isNumber = false;
    const int seconds = qEnvironmentVariableIntValue("QUILLON_SOAK_SECONDS", &isNumber);
    return std::chrono::seconds(isNumber ? seconds : 20);
}

/// A person who keeps an agent busy: files come, rules change, things are taken back.
class Busy {
public:
    explicit Busy(RunningAgent& agent, const ScratchFolder& home) : agent_(agent), home_(home) {}

    void setUp() {
        for (int i = 0; i < folderCount; ++i) {
            home_.makeFolder(name(i).toStdString());
            must({u"folder"_s, u"add"_s, path(i)});
            must({u"rule"_s, u"add"_s, u"--folder"_s, path(i), u"--name"_s, u"Texts"_s, u"--if"_s,
                  u"extension is txt"_s, u"--then"_s,
                  u"move to "_s + QString::fromStdString(home_.path("Texts"))});
        }
    }

    void goRound() {
        const int folder = int(random_() % folderCount);
        drop(folder);
        switch (random_() % 5) {
        case 0:
            must({u"log"_s, u"--limit"_s, u"20"_s, u"--json"_s});
            break;
        case 1:
            takeBack();
            break;
        case 2:
            must({u"rule"_s, u"add"_s, u"--folder"_s, path(folder), u"--name"_s, u"Passing"_s,
                  u"--if"_s, u"name is nobody"_s, u"--then"_s, u"tag red"_s});
            must({u"rule"_s, u"remove"_s, u"Passing"_s, u"--folder"_s, path(folder)});
            break;
        case 3:
            must({u"folder"_s, u"set"_s, path(folder), u"--timing"_s, u"manual"_s});
            must({u"folder"_s, u"set"_s, path(folder), u"--timing"_s, u"live"_s});
            break;
        default:
            must({u"status"_s});
        }
    }

private:
    static QString name(int folder) { return u"Folder %1"_s.arg(folder); }
    [[nodiscard]] QString path(int folder) const {
        return QString::fromStdString(home_.path(name(folder).toStdString()));
    }

    /// Files that are old enough to be tidied, and that must then be gone from here.
    void drop(int folder) {
        const int count = 1 + int(random_() % 4);
        std::vector<std::string> dropped;
        for (int i = 0; i < count; ++i) {
            const std::string file = "file " + std::to_string(++files_) + ".txt";
            const std::string made = home_.write("made/" + file, "text " + file);
            fs::last_write_time(made, fs::file_time_type::clock::now() - std::chrono::hours(1));
            dropped.push_back(path(folder).toStdString() + "/" + file);
            fs::rename(made, dropped.back());
        }
        for (const std::string& file : dropped)
            EXPECT_TRUE(comesTrue([&] { return !fs::exists(file); }, std::chrono::seconds(30)))
                << file << " was not filed";
    }

    /// Paused, for otherwise it would be filed again at once.
    void takeBack() {
        must({u"pause"_s});
        agent_.command({u"undo"_s, u"--last"_s});
        must({u"resume"_s});
    }

    void must(const QStringList& arguments) {
        const RunningAgent::Answer answer = agent_.command(arguments);
        EXPECT_EQ(answer.code, 0) << arguments.join(u' ').toStdString() << "\n"
                                  << answer.out << answer.err;
    }

    RunningAgent& agent_;
    const ScratchFolder& home_;
    std::minstd_rand random_{2026};
    int files_ = 0;
};

TEST(Soak, keepsItsMemoryAndItsDescriptors) {
    const ScratchFolder home;
    RunningAgent agent(QStringLiteral(QUILLON_PROGRAM), home.root());
    ASSERT_TRUE(agent.start()) << agent.said();
    Busy busy(agent, home);
    busy.setUp();

    const auto start = Clock::now();
    const auto warm =
        start + std::min<std::chrono::seconds>(duration() / 4, std::chrono::minutes(5));
    while (Clock::now() < warm)
        busy.goRound();
    const ProcessFigures before = agent.figures();
    int rounds = 0;
    for (; Clock::now() < start + duration() && !::testing::Test::HasFailure(); ++rounds)
        busy.goRound();
    const bool calm = comesTrue([&] { return agent.figures().descriptors <= before.descriptors; },
                                std::chrono::seconds(10));
    const ProcessFigures after = agent.figures();

    std::printf("%d rounds: resident %ld to %ld KB, descriptors %ld to %ld, threads %ld to %ld\n",
                rounds, before.residentKilobytes, after.residentKilobytes, before.descriptors,
                after.descriptors, before.threads, after.threads);
    EXPECT_TRUE(calm);
#ifndef QUILLON_SANITIZED
    EXPECT_LT(after.residentKilobytes - before.residentKilobytes, 5 * 1024);
#endif
    EXPECT_EQ(agent.stop(), 0) << agent.said();
}

} // namespace
} // namespace quillon::testing
