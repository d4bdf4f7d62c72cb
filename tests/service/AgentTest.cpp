#include "support/RunningAgent.h"
#include "support/ScratchFolder.h"

#include <gmock/gmock.h>

#include <csignal>
#include <filesystem>

namespace quillon::testing {
namespace {

namespace fs = std::filesystem;
using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using ::testing::HasSubstr;

/// The built program with a home of its own.
class Agent : public ::testing::Test {
protected:
    ScratchFolder home_;
    RunningAgent agent_{QStringLiteral(QUILLON_PROGRAM), home_.root()};

    std::string log() { return agent_.command({u"log"_s}).out; }

    void fileAReport(const std::string& name) {
        home_.write("in/" + name, "report");
        EXPECT_TRUE(comesTrue([&] { return fs::exists(home_.path("in/PDFs/" + name)); }, 30s))
            << name;
        EXPECT_TRUE(comesTrue([&] { return log().find(name) != std::string::npos; }, 30s))
            << "the log follows the file";
    }
};

TEST_F(Agent, filesWhatIsDroppedAndKeepsItsLogThroughStopsAndKills) {
    home_.makeFolder("in");
    const QString in = QString::fromStdString(home_.path("in"));
    ASSERT_TRUE(agent_.start()) << agent_.said();
    EXPECT_EQ(agent_.command({u"folder"_s, u"add"_s, in, u"--timing"_s, u"live"_s}).code, 0);
    const auto added =
        agent_.command({u"rule"_s, u"add"_s, u"--folder"_s, in, u"--name"_s, u"PDFs"_s, u"--if"_s,
                        u"extension is pdf"_s, u"--then"_s, u"move to "_s + in + u"/PDFs"_s});
    EXPECT_EQ(added.code, 0) << added.err;
    fileAReport("first.pdf");

    const auto second = agent_.command({u"agent"_s});
    EXPECT_EQ(second.code, 4);
    EXPECT_THAT(second.err, HasSubstr("running already"));

    EXPECT_EQ(agent_.stop(), 0);
    for (const char* const happening :
         {"started, no folders", "command: folder add", "in: filed 1 file", "stopped"})
        EXPECT_THAT(agent_.said(), HasSubstr(happening));
    EXPECT_THAT(log(), HasSubstr("first.pdf")) << "read from the files now";

    ASSERT_TRUE(agent_.start()) << agent_.said();
    fileAReport("second.pdf");
    agent_.kill();
    ASSERT_TRUE(agent_.start()) << agent_.said();
    EXPECT_THAT(log(), HasSubstr("first.pdf"));
    EXPECT_THAT(log(), HasSubstr("second.pdf"));
    EXPECT_EQ(agent_.stop(), 0);
}

TEST_F(Agent, saysThatAFolderIsGone) {
    home_.makeFolder("in");
    const QString in = QString::fromStdString(home_.path("in"));
    ASSERT_TRUE(agent_.start()) << agent_.said();
    EXPECT_EQ(agent_.command({u"folder"_s, u"add"_s, in, u"--timing"_s, u"manual"_s}).code, 0);
    fs::remove(home_.path("in"));
    EXPECT_THAT(agent_.command({u"status"_s}).out, HasSubstr("not found"));
    EXPECT_EQ(agent_.stop(), 0);
}

TEST_F(Agent, thatIsHungIsGivenUp) {
    ASSERT_TRUE(agent_.start()) << agent_.said();
    ::kill(pid_t(agent_.processId()), SIGSTOP);
    const auto began = std::chrono::steady_clock::now();
    const auto result = agent_.command({u"status"_s});
    EXPECT_EQ(result.code, 4);
    EXPECT_THAT(result.err, HasSubstr("doesn't answer"));
    EXPECT_LT(std::chrono::steady_clock::now() - began, 8s);
    ::kill(pid_t(agent_.processId()), SIGCONT);
    EXPECT_EQ(agent_.stop(), 0);
}

} // namespace
} // namespace quillon::testing
