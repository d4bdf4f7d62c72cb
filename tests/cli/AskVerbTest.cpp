#include "support/CommandBench.h"
#include "support/ModelServer.h"
#include "support/PrintQt.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <gmock/gmock.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::Not;
using ::testing::StartsWith;

const QString writtenRule =
    uR"({"name":"File bills","matchMode":"all","conditions":[{"attribute":"Name",)"
    uR"("operator":"contains","value":"bill","sizeUnit":"KB"}],"actions":[{"type":)"
    uR"("Move to folder","destination":"My Bills","renamePattern":"","tag":"none",)"
    uR"("sortBy":"none"}],"note":""})"_s;

class AskVerb : public ::testing::Test {
protected:
    void SetUp() override {
        mustRun({"settings", "set", "ai.localHost", server_.host().toStdString()});
        server_.haveModels({u"phi4:latest"_s});
        mustRun({"folder", "add", "@in", "--timing", "manual"});
        for (const char* rule : {"Old", "Invoices"})
            mustRun({"rule", "add", "--folder", "@in", "--name", rule, "--if", "extension is pdf",
                     "--then", "move to " + bench_.at(rule)});
        bench_.write("in/invoice.pdf", "paid");
        mustRun({"run"});
    }

    void mustRun(const std::vector<std::string>& arguments) {
        const auto result = bench_.run(arguments);
        ASSERT_EQ(result.code, ExitCode::done) << arguments[0] << ": " << result.err;
    }
    /// What the model says to a question, which changes it then finds in that, and the rule that it
    /// writes.
    void play(const QString& answer, const QJsonArray& changes = {}) {
        const QByteArray list =
            QJsonDocument(QJsonObject{{u"actions"_s, changes}}).toJson(QJsonDocument::Compact);
        server_.play("/api/chat", std::deque{ModelServer::chatAnswer(answer),
                                             ModelServer::chatAnswer(QString::fromUtf8(list)),
                                             ModelServer::chatAnswer(u"{}"_s)});
    }
    static QJsonObject change(const QString& type, const QString& rule = {},
                              const QString& description = {}) {
        return {{u"type"_s, type},
                {u"folder"_s, u"in"_s},
                {u"rule"_s, rule},
                {u"ruleOrder"_s, QJsonArray{u"Invoices"_s, u"Old"_s}},
                {u"description"_s, description}};
    }
    /// Of the answer that was shown.
    static QString idIn(const std::string& out) {
        return QString::fromStdString(out.substr(out.rfind("--answer ") + 9, 8));
    }
    CommandBench::Result change(const char* number, bool json = false) {
        std::vector<std::string> arguments{"ask", "--do", number};
        if (json)
            arguments.emplace_back("--json");
        return bench_.run(arguments);
    }

    int argc_ = 0;
    QCoreApplication application_{argc_, nullptr};
    ModelServer server_;
    CommandBench bench_;
};

TEST_F(AskVerb, answersWithEntriesAndChangesThatCanBeCarriedOut) {
    play(u"invoice.pdf went to Old.\nMove Invoices above Old."_s,
         {change(u"reorderRules"_s), change(u"turnOffRule"_s, u"Old"_s)});
    const auto asked = bench_.run({"ask", "Where", "did", "invoice.pdf", "go?"});
    EXPECT_EQ(asked.code, ExitCode::done) << asked.err;
    EXPECT_THAT(asked.out,
                MatchesRegex("invoice.pdf went to Old.\nMove Invoices above Old.\n\n"
                             "[0-9A-F]{8}  [-0-9]+ [0-9:]+  invoice.pdf  moved to Old  \\(Old\\)\n"
                             "          /.*/Old/invoice.pdf\n"
                             "Put back with: quillon undo [0-9A-F]{8}\n\n"
                             "1. Reorder rules in in\n   “Invoices”, “Old”\n"
                             "   quillon ask --do 1 --answer [0-9A-F]{8}\n\n"
                             "2. Turn off “Old”\n   in in\n"
                             "   quillon ask --do 2 --answer [0-9A-F]{8}\n"));
    mustRun({"undo", asked.out.substr(asked.out.find("undo ") + 5, 8)});

    const auto reordered = change("1");
    EXPECT_EQ(reordered.code, ExitCode::done) << reordered.err;
    EXPECT_THAT(reordered.out, AllOf(StartsWith("Reorder rules in in:\nThe rules of in are"),
                                     HasSubstr("in their new order.\n\n1  Invoices\n")));
    const auto off = QJsonDocument::fromJson(QByteArray::fromStdString(change("2", true).out));
    EXPECT_EQ(off[1][u"name"].toString(), u"Old");
    EXPECT_FALSE(off[1][u"isEnabled"].toBool(true));

    const struct {
        const char* number;
        ExitCode code;
        const char* said;
    } rows[] = {
        {"1", ExitCode::someFailed, "done already"},
        {"3", ExitCode::usage, "There is no change 3; Dobbin's answer offers 2 changes\n"},
        {"0", ExitCode::usage, "“0” is not the number of a change"},
        {"-1", ExitCode::usage, "is not the number of a change"},
    };
    for (const auto& row : rows) {
        const auto result = change(row.number);
        EXPECT_EQ(result.code, row.code) << row.number;
        EXPECT_THAT(result.err, HasSubstr(row.said));
        EXPECT_THAT(result.out, IsEmpty());
    }
}

TEST_F(AskVerb, runsFoldersWritesRulesAndKnowsWhatHasGone) {
    play(u"Run in now, or add a new rule."_s,
         {change(u"runFolder"_s), change(u"writeRule"_s, {}, u"Move PDFs to \"My Bills\""_s)});
    const auto asked = bench_.run({"ask", "--json", "What now with the pdf?"});
    const auto json = QJsonDocument::fromJson(QByteArray::fromStdString(asked.out));
    EXPECT_EQ(json[u"question"].toString(), u"What now with the pdf?");
    EXPECT_FALSE(json[u"isError"].toBool(true));
    EXPECT_EQ(json[u"actions"][0][u"label"].toString(), u"Run in now");
    EXPECT_EQ(json[u"actions"][1][u"command"].toString(),
              u"quillon ask --do 2 --answer "_s + idIn(asked.out));
    bench_.write("in/other.pdf", "paid");
    EXPECT_THAT(change("1").out, HasSubstr("other.pdf  moved to Old\n\nin: tidied 1 file.\n"));

    const auto refused = change("2");
    EXPECT_EQ(refused.code, ExitCode::someFailed) << "the model's rule can't be understood";
    EXPECT_THAT(refused.err, Not(IsEmpty()));
    server_.play("/api/chat", ModelServer::chatAnswer(writtenRule));
    bench_.write("in/a bill.txt", "owed");
    for (int time = 0; time < 2; ++time)
        EXPECT_THAT(change("2").out,
                    AllOf(HasSubstr("Would catch 1 of 1 file: a bill.txt"),
                          HasSubstr("saved: quillon write-rule " + bench_.at("in") +
                                    " 'Move PDFs to \"My Bills\"' --save\n")));
    EXPECT_THAT(bench_.run({"rule", "list", "--folder", "@in"}).out, Not(HasSubstr("Bills")));
    mustRun({"folder", "remove", "@in"});
    for (const char* number : {"1", "2"}) {
        EXPECT_EQ(change(number).code, ExitCode::someFailed) << number;
    }
    EXPECT_THAT(change("2").err, HasSubstr("“in” is no longer watched"));
}

TEST_F(AskVerb, carriesOutNothingThatNobodyHasSeen) {
    play(u"Move Invoices above Old."_s, {change(u"reorderRules"_s)});
    const auto asked = QByteArray::fromStdString(bench_.run({"ask", "--json", "Why Old?"}).out);
    const auto offered = QJsonDocument::fromJson(asked)[u"actions"][0];
    EXPECT_EQ(offered[u"ruleNames"].toArray(), (QJsonArray{u"Invoices"_s, u"Old"_s}));
    const std::string first = idIn(asked.toStdString()).toStdString();
    play(u"Turn off Old."_s, {change(u"turnOffRule"_s, u"Old"_s)});
    std::istringstream in;
    std::ostringstream gone;
    gone.setstate(std::ios::badbit);
    const UserFolders folders{.home = bench_.at(""),
                              .data = bench_.at("data/Quillon"),
                              .runtime = bench_.at("run"),
                              .config = bench_.at("config/Quillon")};
    const Console deaf{.in = in, .out = gone, .err = gone};
    EXPECT_NE(runCommandLine({"ask", "And now?"}, deaf, [&] { return folders; }), ExitCode::done);
    std::ifstream file(bench_.at("data/Quillon/dobbin-chat.json"));
    const std::string kept(std::istreambuf_iterator<char>(file), {});
    const auto turns = QJsonDocument::fromJson(QByteArray::fromStdString(kept)).array();
    const std::string second = turns.last()[u"id"].toString().left(8).toStdString();

    const auto refused = [&](const std::vector<std::string>& more, const char* said) {
        std::vector<std::string> arguments{"ask", "--do", "1"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        const auto result = bench_.run(arguments);
        EXPECT_NE(result.code, ExitCode::done);
        EXPECT_THAT(result.err, HasSubstr(said));
        EXPECT_THAT(result.out, IsEmpty());
    };
    refused({}, "Nobody has seen what Dobbin's last answer offers");
    mustRun({"ask", "What can you do?"});
    refused({}, "no answer that offers a change; ask again");
    refused({"--answer", ""}, "“” is not the id of an answer");
    refused({"--answer", second.substr(0, 7)}, "is not the id of an answer");
    refused({"--answer", "0000000G"}, "The conversation has no answer 0000000G; ask again");
    EXPECT_THAT(bench_.run({"ask", "--do", "1", "--answer", first}).out,
                StartsWith("Reorder rules in in:\n"));
    EXPECT_THAT(bench_.run({"ask", "--do", "1", "--answer", second}).out,
                StartsWith("Turn off “Old” in in:\n“Old” is now off.\n"));
}

TEST_F(AskVerb, saysWhatIsMissingAndStillHelps) {
    server_.haveModels({});
    const std::string longQuestion(4001, 'x');
    const struct {
        std::vector<std::string> arguments;
        ExitCode code;
        const char* said;
    } rows[] = {
        {{"ask", "where?"}, ExitCode::someFailed, "Run “quillon model pull” to download one.\n"},
        {{"ask", "--json", "where?"}, ExitCode::someFailed, R"("isError":true)"},
        {{"ask", "What can you do?"}, ExitCode::done, "Ask me in plain English and I can:\n\n•"},
        {{"ask", "--do", "1"}, ExitCode::someFailed, "no answer that offers a change; ask again"},
        {{"ask", "where?", "--answer", "12345678"}, ExitCode::usage, "--answer goes with --do N"},
        {{"ask"}, ExitCode::usage, "Give either a question or --do N"},
        {{"ask", " \n "}, ExitCode::usage, "Give either a question or --do N"},
        {{"ask", "where?", "--do", "1"}, ExitCode::usage, "Give either a question or --do N"},
        {{"ask", longQuestion}, ExitCode::usage, "too long"},
    };
    for (const auto& row : rows) {
        const auto result = bench_.run(row.arguments);
        EXPECT_EQ(result.code, row.code) << row.arguments.back();
        EXPECT_THAT(result.out + result.err, HasSubstr(row.said));
    }
    bench_.write("data/Quillon/dobbin-chat.json", "[");
    EXPECT_THAT(bench_.run({"ask", "What can you do?"}).err,
                HasSubstr("and the conversation with Dobbin starts anew\n"));
}

} // namespace
} // namespace quillon::testing
