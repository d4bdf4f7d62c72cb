#include "support/CommandBench.h"
#include "support/FullDisk.h"
#include "support/ModelServer.h"
#include "support/PrintQt.h"
#include "support/PrivateKeyring.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gmock/gmock.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

/// The rule that files PDFs into a folder, as a model writes it down.
QString pdfsTo(const QString& destination) {
    return uR"({"name":"File PDFs","matchMode":"all","conditions":[{"attribute":"Kind",
        "operator":"is","value":"pdf","sizeUnit":"MB"}],"actions":[{"type":"Move to folder",
        "destination":"%1","renamePattern":"","tag":"none","sortBy":"none"}],"note":"Only PDFs."})"_s
        .arg(destination);
}

QString trashing(const QString& kind) {
    return pdfsTo(QString())
        .replace(u"Move to folder"_s, u"Move to Trash"_s)
        .replace(u"\"pdf\""_s, u'"' + kind + u'"');
}

const QString everything =
    uR"({"name":"","matchMode":"all","conditions":[],"actions":[{"type":"Move to Trash",
    "destination":"","renamePattern":"","tag":"none","sortBy":"none"}],"note":""})"_s;

class WriteRule : public ::testing::Test {
protected:
    void SetUp() override {
        const std::string host = server.host().toStdString();
        ASSERT_EQ(bench.run({"settings", "set", "ai.localHost", host}).code, ExitCode::done);
        ASSERT_EQ(bench.run({"settings", "set", "ai.claudeHost", host}).code, ExitCode::done);
        server.haveModels({u"llama3.2:latest"_s});
        bench.write("in/a.pdf", "a");
        bench.write("in/b.txt", "b");
    }

    int argc = 0;
    QCoreApplication application{argc, nullptr};
    ModelServer server;
    CommandBench bench;
};

TEST_F(WriteRule, SavesOnlyWhatTheUserHasAgreedTo) {
    const QString inside = pdfsTo(u"PDFs"_s);
    const QString outside = pdfsTo(u"/nowhere/PDFs"_s);
    const struct {
        const char* options;
        QString answer;
        ExitCode code;
        const char* said; ///< on either stream
        std::size_t rules;
        const char* typed = nullptr; ///< at a terminal
    } steps[] = {
        {"", inside, ExitCode::done, "Would catch 1 of 2 files: a.pdf\nTo keep it, watch the", 0},
        {"--save", inside, ExitCode::usage, "can keep no rule; first: quillon folder add", 0},
        {"watch", {}, ExitCode::done, "Watching", 0},
        {"", inside, ExitCode::done, "note: Only PDFs.\n\nWould catch 1 of 2 files: a.pdf\nTo", 0},
        {"", outside, ExitCode::done, "own folders: files would go to /nowhere/PDFs.\n", 0},
        {"--save", outside, ExitCode::someFailed, "--anyway saves it all the same", 0},
        {"--save", outside, ExitCode::someFailed, "The rule is not saved\n", 0, "no\n"},
        {"--save", outside, ExitCode::someFailed, "The rule is not saved because", 0, ""},
        {"--json --save", outside, ExitCode::someFailed, R"("saved":false,"runs":[])", 0, "yes\n"},
        {"--save", everything, ExitCode::someFailed, "this rule never matches", 0},
        {"--save", everything, ExitCode::done, "Saved as a rule of in.", 1, " YES \n"},
        {"--save --anyway --json", everything, ExitCode::done, R"("saved":true)", 2},
        {"--save", inside, ExitCode::done, "a.pdf  moved to PDFs\n\nin: tidied 1 file.\n", 3},
    };
    int number = 0; // so that no step saves what another one has shown
    for (const auto& step : steps) {
        server.play("/api/chat", ModelServer::chatAnswer(step.answer));
        std::vector<std::string> arguments{"write-rule", "@in", "File", std::to_string(++number)};
        std::istringstream options(step.options);
        for (std::string option; options >> option;)
            arguments.push_back(option);
        if (arguments.back() == "watch")
            arguments = {"folder", "add", "@in"};
        const auto result = bench.run(arguments, step.typed ? step.typed : "", step.typed);
        EXPECT_EQ(result.code, step.code) << step.options << result.err;
        EXPECT_THAT(result.out + result.err, HasSubstr(step.said)) << step.options;
        const auto listed = bench.run({"rule", "list", "--folder", "@in", "--json"}).out;
        EXPECT_EQ(std::size_t(QJsonDocument::fromJson(listed.c_str()).array().size()), step.rules)
            << step.options;
    }
    EXPECT_EQ(server.requests("/api/chat").first().json()[u"messages"_s][1][u"content"_s],
              u"File 1"_s);
    EXPECT_EQ(server.requests("/api/chat").size(), std::ssize(steps) - 2) << "one a draft";
    bench.write("in/c.pdf", "c");
    EXPECT_THAT(bench.run({"write-rule", "@in", "x"}).out, HasSubstr("Would catch none of"))
        << "the rule of before takes it";
}

TEST_F(WriteRule, SavesTheRuleThatWasShown) {
    ASSERT_EQ(bench.run({"folder", "add", "@in"}).code, ExitCode::done);
    const auto write = [&](const char* sentence, bool saves, const QString& answer,
                           const char* typed = nullptr) {
        server.play("/api/chat", ModelServer::chatAnswer(answer));
        std::vector<std::string> arguments{"write-rule", "@in", sentence};
        if (saves)
            arguments.emplace_back("--save");
        const auto result = bench.run(arguments, typed ? typed : "", typed);
        return result.out + result.err;
    };
    EXPECT_THAT(write("File PDFs", false, pdfsTo(u"Shown"_s)), HasSubstr("Move to Shown"));
    {
        const FullDisk full;
        EXPECT_THAT(write("Anything", true, pdfsTo(u"Lost"_s)),
                    AllOf(HasSubstr("can't be saved"), Not(HasSubstr("Saved as"))));
    }
    EXPECT_THAT(write("File PDFs", false, pdfsTo(u"Shown"_s)), HasSubstr("Move to Shown"));
    EXPECT_THAT(write(" File PDFs ", true, everything),
                AllOf(HasSubstr("Saved as"), HasSubstr("a.pdf  moved to Shown")));
    EXPECT_EQ(server.requests("/api/chat").size(), 3) << "nobody is asked again";

    const char* unseen = "Trash and you hadn't seen it; --anyway";
    EXPECT_THAT(write("Trash text", true, trashing(u"document"_s)),
                AllOf(HasSubstr(unseen), Not(HasSubstr("Saved as"))));
    EXPECT_THAT(write("Trash text now", true, trashing(u"document"_s), "no\n"),
                HasSubstr("The rule is not saved\n"));
    EXPECT_THAT(write("Trash text", true, everything), HasSubstr("b.txt  moved to Trash"));
    EXPECT_THAT(write("Move", true, pdfsTo(QString())), HasSubstr("because of its warnings"));
    EXPECT_THAT(write("Move", true, everything),
                AllOf(HasSubstr("Move to …"), HasSubstr("because of its warnings")));
}

TEST_F(WriteRule, ShowsWhatItWouldCatchAndAsksNobodyAboutFiles) {
    QString answer = pdfsTo(u"PDFs"_s);
    server.play("/api/chat",
                ModelServer::chatAnswer(answer.replace(u"\"Kind\""_s, u"\"Dobbin says it\""_s)));
    std::filesystem::create_directories(bench.at("data/Quillon"));
    const auto before = bench.files();
    const auto result = bench.run({"write-rule", "@in", "File receipts", "--json"});
    const QJsonObject shown = QJsonDocument::fromJson(result.out.c_str()).object();
    EXPECT_EQ(shown[u"tested"_s], 2);
    EXPECT_EQ(shown[u"matches"_s], QJsonArray());
    EXPECT_EQ(shown[u"asks"_s], (QJsonArray{u"a.pdf"_s, u"b.txt"_s}));
    EXPECT_EQ(shown[u"summary"_s], u"If Dobbin says it's pdf → Move to PDFs"_s);
    EXPECT_EQ(shown[u"rule"_s][u"actions"_s][0][u"destination"_s],
              QString::fromStdString(bench.at("in/PDFs")));
    auto after = bench.files();
    EXPECT_THAT(after.extract("data/Quillon/drafts.json").mapped(), HasSubstr("File receipts"));
    EXPECT_EQ(after, before);
    EXPECT_EQ(server.requests("/api/chat").size(), 1);
}

TEST_F(WriteRule, SaysWhyThereIsNone) {
    server.play("/api/chat", ModelServer::chatAnswer(u"Sure!"_s));
    EXPECT_THAT(bench.run({"write-rule", "@in", "x"}).err, HasSubstr("Try rephrasing it."));
    const struct {
        std::vector<std::string> arguments;
        ExitCode code;
        const char* said;
    } rows[] = {
        {{"@nowhere", "x"}, ExitCode::unreadable, "can't be read"},
        {{"@in/a.pdf", "x"}, ExitCode::unreadable, "can't be read"},
        {{"@in", " "}, ExitCode::usage, "SENTENCE says nothing"},
        {{"@in", std::string(4001, 'x')}, ExitCode::usage, "SENTENCE is too long"},
        {{"@in", "x", "--anyway"}, ExitCode::usage, "--save"},
        {{"@in", "x"}, ExitCode::someFailed, "Run “quillon model pull” to download one."},
    };
    server.haveModels({});
    for (const auto& row : rows) {
        std::vector<std::string> arguments{"write-rule"};
        arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
        const auto result = bench.run(arguments);
        EXPECT_EQ(result.code, row.code) << row.said;
        EXPECT_THAT(result.err, HasSubstr(row.said));
        EXPECT_EQ(result.out, "");
    }
}

TEST_F(WriteRule, AsksClaudeWhenHeIsChosen) {
    PrivateKeyring keyring;
    qputenv("DBUS_SESSION_BUS_ADDRESS", keyring.address().toUtf8());
    ASSERT_TRUE(keyring.start("open sesame"));
    server.play("/v1/models", ModelServer::Answer{});
    ASSERT_EQ(bench.run({"key", "set"}, "sk-ours\n").code, ExitCode::done);
    ASSERT_EQ(bench.run({"settings", "set", "ai.useClaude", "on"}).code, ExitCode::done);
    server.play("/v1/messages", {ModelServer::claudeAnswer(pdfsTo(u"PDFs"_s)),
                                 ModelServer::claudeError(529, u"Overloaded"_s)});
    EXPECT_THAT(bench.run({"write-rule", "@in", "x"}).out,
                AllOf(HasSubstr("If kind is PDFs → Move to PDFs\n"), Not(HasSubstr("warning"))));
    EXPECT_EQ(bench.run({"write-rule", "@in", "x"}).err,
              "quillon: Claude is busy right now. Try again in a moment.\n");
}

} // namespace
} // namespace quillon::testing
