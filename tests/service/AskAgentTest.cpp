#include "support/ModelServer.h"
#include "support/PrintQt.h"
#include "support/RunningAgent.h"
#include "support/ScratchFolder.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <future>
#include <thread>
#include <vector>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using ::testing::HasSubstr;

/// Repeats the question, and remembers how many it was asked at once.
class Echo {
public:
    explicit Echo(ModelServer& server) {
        server.haveModels({u"echo:latest"_s});
        server.play("/api/chat", [this](const ModelServer::Request& request) {
            const QString message =
                request.json()[u"messages"_s].toArray().last().toObject()[u"content"_s].toString();
            ++asked;
            return ModelServer::Answer{
                .body =
                    ModelServer::chatAnswer(u"You said "_s + message.section(u"Question: "_s, -1))
                        .body,
                .delay = 100ms,
                .isSilent = isSilent};
        });
    }

    std::atomic<int> asked = 0;
    std::atomic<bool> isSilent = false;
};

TEST(AskAgent, answersEverybodyInTurnAndForgetsNothingWhenItIsKilled) {
    std::array<char, 5> name{"test"};
    std::array<char*, 2> arguments{name.data(), nullptr};
    int count = 1;
    const QCoreApplication application(count, arguments.data());
    const ScratchFolder home;
    ModelServer server;
    Echo echo(server);
    RunningAgent agent(QStringLiteral(QUILLON_PROGRAM), home.root());
    ASSERT_EQ(agent.command({u"settings"_s, u"set"_s, u"ai.localHost"_s, server.host()}).code, 0);
    ASSERT_TRUE(agent.start()) << agent.said();

    const auto ask = [&](const QString& question) {
        return std::async(std::launch::async, [&agent, question] {
            return agent.command({u"ask"_s, question});
        });
    };
    const auto began = std::chrono::steady_clock::now();
    std::vector<std::future<RunningAgent::Answer>> answers;
    for (int i = 0; i < 4; ++i)
        answers.push_back(ask(u"number %1"_s.arg(i)));
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(answers[std::size_t(i)].get().out, "You said number " + std::to_string(i) + '\n');
    EXPECT_GE(std::chrono::steady_clock::now() - began, 400ms) << "one at a time";

    echo.isSilent = true;
    const auto interrupted = [&] { return ask(u"what was lost"_s); };
    auto waiting = interrupted();
    ASSERT_TRUE(comesTrue([&] { return echo.asked == 5; }, 20s));
    EXPECT_EQ(agent.command({u"status"_s}).code, 0) << "thinking keeps nobody waiting";
    agent.kill();
    EXPECT_EQ(waiting.get().code, 4);
    EXPECT_THAT(home.read("data/Quillon/dobbin-chat.json"), HasSubstr("\"what was lost\""));

    ASSERT_TRUE(agent.start()) << agent.said();
    waiting = interrupted();
    ASSERT_TRUE(comesTrue([&] { return echo.asked == 6; }, 20s));
    EXPECT_EQ(agent.stop(), 0) << "in the middle of a thought";
    const auto stopped = waiting.get();
    EXPECT_EQ(stopped.code, 1);
    EXPECT_THAT(stopped.err, HasSubstr("Stopped before there was an answer"));

    echo.isSilent = false;
    EXPECT_EQ(agent.command({u"ask"_s, u"alone?"_s}).out, "You said alone?\n");
    const QByteArray sent = server.requests("/api/chat").last().body;
    EXPECT_TRUE(sent.contains("Dobbin: You said number ") && !sent.contains("what was lost"));
}

} // namespace
} // namespace quillon::testing
