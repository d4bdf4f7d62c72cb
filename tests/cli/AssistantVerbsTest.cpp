#include "support/CommandBench.h"
#include "support/ModelServer.h"
#include "support/PrintQt.h"
#include "support/PrivateKeyring.h"

#include <QCoreApplication>
#include <gmock/gmock.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

class AssistantVerbs : public ::testing::Test {
protected:
    void SetUp() override {
        const std::string host = server.host().toStdString();
        ASSERT_EQ(run("settings set ai.claudeHost " + host).code, ExitCode::done);
        ASSERT_EQ(run("settings set ai.localHost " + host).code, ExitCode::done);
    }

    CommandBench::Result run(const std::string& words, const std::string& input = {},
                             bool isTerminal = false) {
        std::istringstream text(words);
        const std::vector<std::string> arguments(std::istream_iterator<std::string>(text), {});
        return bench.run(arguments, input, isTerminal);
    }

    int argc = 0;
    QCoreApplication application{argc, nullptr};
    ModelServer server;
    CommandBench bench;
};

TEST_F(AssistantVerbs, keepTheKeyInTheKeyringAlone) {
    PrivateKeyring keyring;
    qputenv("DBUS_SESSION_BUS_ADDRESS", keyring.address().toUtf8());
    ASSERT_TRUE(keyring.start("open sesame"));
    server.play("/v1/models", [](const ModelServer::Request& request) {
        return request.headers["x-api-key"].startsWith("sk-")
                   ? ModelServer::Answer{}
                   : ModelServer::claudeError(401, u"invalid x-api-key"_s);
    });
    const struct {
        const char* words;
        const char* input;
        ExitCode code;
        const char* said; ///< on either stream
    } steps[] = {
        {"key status", "", ExitCode::done, "Key: none"},
        {"key set", "", ExitCode::usage, "No key was given"},
        {"key set", "   \n", ExitCode::someFailed,
         "Add your Claude API key in Settings → Dobbin → Advanced."},
        {"key set", "  sk-first\t\n", ExitCode::done, "Dobbin still uses the local model; to use"},
        {"key status", "", ExitCode::done, "saved, ends in “irst”\nDobbin uses the local model"},
        {"settings set ai.useClaude on", "", ExitCode::done, ""},
        {"key status", "", ExitCode::done, "Dobbin uses Claude Sonnet 5.5"},
        {"key set", "wrong\n", ExitCode::someFailed, "Claude didn't accept that API key."},
        {"key set", "sk-second\n", ExitCode::done, "Key saved. Dobbin is now using Claude.\n"},
        {"key status --json", "", ExitCode::done, R"("suffix":"cond","useClaude":true,)"},
        {"key status --json", "", ExitCode::done, R"("backend":"claude")"},
        {"key remove", "", ExitCode::done, "No key is saved any more."},
        {"key remove", "", ExitCode::done, "No key is saved any more."},
        {"key status --json", "", ExitCode::done, R"("hasKey":false,)"},
    };
    for (const auto& step : steps) {
        const auto result = run(step.words, step.input);
        EXPECT_EQ(result.code, step.code) << step.words;
        EXPECT_THAT(result.out + result.err, AllOf(HasSubstr(step.said), Not(HasSubstr("sk-"))))
            << step.words;
    }
    EXPECT_EQ(server.requests("/v1/models").size(), 3) << "an empty key is not sent";
    for (const auto& [name, contents] : bench.files())
        EXPECT_THAT(contents, Not(HasSubstr("sk-"))) << name;

    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    for (const char* words : {"key set", "key status", "key remove"}) {
        const auto result = run(words, "sk-third\n");
        EXPECT_EQ(result.code, ExitCode::someFailed);
        EXPECT_THAT(result.err, HasSubstr("There is no keyring in this session")) << words;
    }
}

TEST_F(AssistantVerbs, tellOfTheLocalModelsAndChooseAmongThem) {
    EXPECT_THAT(run("model status").out, HasSubstr("isn't available right now"));
    server.haveModels({});
    EXPECT_THAT(run("model status").out, HasSubstr("Run “quillon model pull”"));
    EXPECT_THAT(run("model use llama9").err, HasSubstr("nor is any other"));

    server.haveModels({u"llama3.2:3b"_s, u"phi4:latest"_s, u"gpt-oss:120b-cloud"_s});
    const auto status = run("model status");
    EXPECT_THAT(status.out, AllOf(HasSubstr("The local model is ready: llama3.2:3b\n"),
                                  HasSubstr("phi4:latest         2.02 GB\n"),
                                  HasSubstr("runs on another machine")));
    const struct {
        const char* name;
        ExitCode code;
        const char* said;
        const char* chosen;
    } rows[] = {
        {"llama3.2:3", ExitCode::usage, "the nearest is “llama3.2:3b”", "\n"},
        {"gpt-oss:120b-cloud", ExitCode::usage, "doesn't run on this computer", "\n"},
        {"phi4", ExitCode::done, "is now phi4:latest", "phi4:latest\n"},
    };
    for (const auto& row : rows) {
        const auto result = run(std::string("model use ") + row.name);
        EXPECT_EQ(result.code, row.code) << row.name;
        EXPECT_THAT(result.out + result.err, HasSubstr(row.said));
        EXPECT_EQ(run("settings get ai.localModel").out, row.chosen);
    }
    EXPECT_THAT(run("model status --json").out,
                AllOf(HasSubstr(R"("state":"ready","model":"phi4:latest")"),
                      HasSubstr(R"({"name":"phi4:latest","bytes":2019393189,"isLocal":true})")));
    ASSERT_EQ(run("settings set ai.localHost http://127.0.0.1:9").code, ExitCode::done);
    EXPECT_THAT(run("model status --json").out, HasSubstr(R"("state":"serverAbsent")"));
}

TEST_F(AssistantVerbs, downloadAModel) {
    const QByteArray begun =
        "{\"status\":\"pulling manifest\"}\n"
        "{\"status\":\"pulling a\",\"digest\":\"sha256:a\",\"total\":900000000,"
        "\"completed\":450000000}\n";
    const QByteArray whole = begun + "{\"status\":\"verifying sha256 digest\"}\n"
                                     "{\"status\":\"success\"}\n";
    server.haveModels({u"llama3.2:3b"_s, u"phi4:latest"_s});
    const struct {
        const char* words;
        ModelServer::Answer answer;
        ExitCode code;
        const char* said;
    } rows[] = {
        {"model pull", {.body = whole, .chunk = 7}, ExitCode::done, "llama3.2:3b is downloaded.\n"},
        {"model pull phi4", {.body = whole}, ExitCode::done, "To use it: quillon model use phi4"},
        {"model pull x",
         {.body = begun + "{\"error\":\"pull model manifest:\\n file does not exist\"}\n"},
         ExitCode::someFailed,
         "“x” can't be downloaded: pull model manifest: file does not exist\n"},
        {"model pull x",
         {.status = 500, .body = "{\"error\":\"disk full\"}"},
         ExitCode::someFailed,
         "“x” can't be downloaded: disk full\n"},
        {"model pull x", {.body = begun}, ExitCode::someFailed, "ended early"},
        {"model pull x", {.body = whole, .cutAfter = 100}, ExitCode::someFailed, "ended early"},
        {"model pull x", {.body = "<html>\n"}, ExitCode::someFailed, "can't be understood"},
        {"model pull x",
         {.status = 302, .headers = {{"location", "/api/tags"}}},
         ExitCode::someFailed,
         "answers with 302"},
        {"model pull big-cloud", {.body = whole}, ExitCode::usage, "doesn't run on this computer"},
    };
    for (const auto& row : rows) {
        server.play("/api/pull", row.answer);
        const auto result = run(row.words);
        EXPECT_EQ(result.code, row.code) << row.words << row.answer.body.constData();
        EXPECT_THAT(result.out + result.err, HasSubstr(row.said));
    }
    EXPECT_EQ(server.requests("/api/pull").first().json()[u"model"].toString(), u"llama3.2:3b");
}

} // namespace
} // namespace quillon::testing
