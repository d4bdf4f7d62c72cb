#include "model/RuleFile.h"
#include "support/EventLoopApplication.h"
#include "support/ModelServer.h"
#include "support/PrintQt.h"
#include "support/RunningAgent.h"
#include "support/ScratchFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <gmock/gmock.h>

#include <array>
#include <filesystem>
#include <iostream>
#include <map>
#include <mutex>

namespace quillon::testing {
namespace {

namespace fs = std::filesystem;
using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using ::testing::ElementsAre;
using Moment = std::chrono::steady_clock::time_point;

/// A model that tells receipts by their names and calls letters by what is in them, and remembers
/// what it was asked.
class Clerk {
public:
    explicit Clerk(ModelServer& server) {
        server.haveModels({u"clerk:latest"_s});
        server.play("/api/chat",
                    [this](const ModelServer::Request& request) { return answer(request); });
    }

    /// How often each file was asked about, by the kind of the question and the file's name.
    [[nodiscard]] std::map<std::string, int> asked() const {
        const std::scoped_lock guard(lock_);
        return asked_;
    }
    [[nodiscard]] std::vector<qsizetype> verdictBatches() const {
        const std::scoped_lock guard(lock_);
        return verdictBatches_;
    }
    [[nodiscard]] Moment lastAnswer() const {
        const std::scoped_lock guard(lock_);
        return lastAnswer_;
    }
    void setSilent(bool silent) {
        const std::scoped_lock guard(lock_);
        isSilent_ = silent;
    }

private:
    ModelServer::Answer answer(const ModelServer::Request& request) {
        const QJsonObject body = request.json();
        const QString prompt =
            body[u"messages"_s].toArray().last().toObject()[u"content"_s].toString();
        const bool isNaming = request.body.contains("\"amount\"");
        const QString list = isNaming ? u"names"_s : u"verdicts"_s;
        QJsonArray said;
        const std::scoped_lock guard(lock_);
        const QStringList blocks = prompt.split(u"[f"_s).mid(1);
        for (const QString& block : blocks) {
            const QString id = u'f' + block.section(u']', 0, 0);
            const QString name = block.section(u"name: "_s, 1).section(u'\n', 0, 0);
            const QString text = block.section(u"\ntext: "_s, 1).section(u'\n', 0, 0);
            ++asked_[(isNaming ? "name " : "verdict ") + name.toStdString()];
            said.append(
                isNaming ? QJsonObject{{u"id"_s, id},
                                       {u"date"_s,
                                        block.section(u"date in text: "_s, 1).section(u'\n', 0, 0)},
                                       {u"from"_s, text.section(u' ', 0, 0)},
                                       {u"what"_s, u"../letter"_s},
                                       {u"amount"_s, u""_s}}
                         : QJsonObject{{u"id"_s, id},
                                       {u"whatItIs"_s, u"a paper"_s},
                                       {u"matches"_s, name.contains(u"receipt"_s)}});
        }
        if (!isNaming)
            verdictBatches_.push_back(blocks.size());
        lastAnswer_ = std::chrono::steady_clock::now();
        if (isSilent_)
            return {.isSilent = true};
        return ModelServer::chatAnswer(
            QString::fromUtf8(QJsonDocument(QJsonObject{{list, said}}).toJson()));
    }

    mutable std::mutex lock_;
    std::map<std::string, int> asked_;
    std::vector<qsizetype> verdictBatches_;
    Moment lastAnswer_;
    bool isSilent_ = false;
};

Rule receiptsAway(const QString& to) {
    Rule rule;
    rule.name = u"Receipts"_s;
    rule.conditions.front().attribute = ConditionAttribute::dobbinSays;
    rule.conditions.front().value = u"a receipt"_s;
    rule.actions.front().destination = to;
    return rule;
}

Rule lettersNamed() {
    Rule rule;
    rule.name = u"Letters"_s;
    rule.conditions.front().attribute = ConditionAttribute::extension;
    rule.conditions.front().op = MatchOperator::is;
    rule.conditions.front().value = u"txt"_s;
    rule.actions.front().type = ActionType::renameWithDobbin;
    return rule;
}

class DobbinAgent : public ::testing::Test {
    EventLoopApplication application_; // for the server

protected:
    ScratchFolder home_;
    ModelServer server_;
    Clerk clerk_{server_};
    RunningAgent agent_{QStringLiteral(QUILLON_PROGRAM), home_.root()};
    const QString in_ = QString::fromStdString(home_.makeFolder("in"));
    const QString receipts_ = QString::fromStdString(home_.path("Receipts"));

    void mustRun(const QStringList& arguments) {
        const auto answer = agent_.command(arguments);
        EXPECT_EQ(answer.code, 0) << arguments.join(u' ').toStdString() << ": " << answer.err;
    }
    /// Old enough not to be settling.
    void drop(const std::string& name, const std::string& contents) {
        const std::string path = home_.write("aside/" + name, contents);
        fs::last_write_time(path, fs::file_time_type::clock::now() - 1h);
        fs::rename(path, home_.path("in/" + name));
    }
    bool appears(const std::string& name) {
        return comesTrue([&] { return home_.has(name); }, 60s);
    }
};

TEST_F(DobbinAgent, filesWhatTheModelSaysAsksNothingTwiceAndLosesNothing) {
    mustRun({u"settings"_s, u"set"_s, u"ai.localHost"_s, server_.host()});
    mustRun({u"settings"_s, u"set"_s, u"ai.readContents"_s, u"true"_s});
    const std::array<std::string, 3> extensions{".csv", ".zip", ".md"};
    std::map<std::string, int> once;
    std::vector<std::string> places;
    for (std::size_t i = 0; i < 30; ++i) {
        const std::string number = std::to_string(i);
        const bool isLetter = i % 3 == 2;
        const std::string name =
            isLetter ? "scan " + number + ".txt" : "receipt " + number + extensions[i % 4 % 3];
        drop(name, isLetter ? "Sender" + number + " writes on 12 March 2026" : "paid");
        once["verdict " + name] = 1;
        if (isLetter)
            once["name " + name] = 1;
        places.push_back(isLetter ? "in/2026-03-12 Sender" + number + " letter.txt"
                                  : "Receipts/" + name);
    }
    const QString rules = QString::fromStdString(home_.write(
        "rules.json", encodeRules({receiptsAway(receipts_), lettersNamed()}).toStdString()));
    ASSERT_TRUE(agent_.start()) << agent_.said();
    mustRun({u"folder"_s, u"add"_s, in_, u"--timing"_s, u"live"_s});
    mustRun({u"rule"_s, u"import"_s, rules, u"--folder"_s, in_});

    for (const std::string& place : places)
        ASSERT_TRUE(appears(place)) << place << '\n' << agent_.said();
    EXPECT_THAT(clerk_.verdictBatches(), ElementsAre(24, 6));
    mustRun({u"run"_s, u"--wait"_s, in_});
    EXPECT_EQ(clerk_.asked(), once);

    std::vector<double> delays;
    for (const char* const name : {"receipt a.csv", "receipt b.csv", "receipt c.csv"}) {
        drop(name, "paid");
        EXPECT_TRUE(appears(std::string("Receipts/") + name));
        const auto delay = std::chrono::steady_clock::now() - clerk_.lastAnswer();
        delays.push_back(std::chrono::duration<double, std::milli>(delay).count());
    }
    std::ranges::sort(delays);
    std::cout << "from the verdict to the file in its place: " << delays[1] << " ms\n";
    EXPECT_LT(delays[1], 2000);

    clerk_.setSilent(true);
    drop("receipt late.csv", "paid");
    EXPECT_TRUE(
        comesTrue([&] { return clerk_.asked().contains("verdict receipt late.csv"); }, 60s));
    agent_.kill();
    EXPECT_EQ(home_.read("in/receipt late.csv"), "paid");
    clerk_.setSilent(false);
    ASSERT_TRUE(agent_.start()) << agent_.said();
    EXPECT_TRUE(
        comesTrue([&] { return agent_.said().find("started, 1 ") != std::string::npos; }, 20s));
    drop("receipt later.csv", "paid");
    mustRun({u"run"_s, in_});
    ASSERT_TRUE(appears("Receipts/receipt late.csv")) << agent_.said();
    EXPECT_TRUE(appears("Receipts/receipt later.csv"));
    EXPECT_EQ(clerk_.asked()["verdict receipt late.csv"], 2);

    clerk_.setSilent(true);
    drop("receipt last.csv", "paid");
    EXPECT_TRUE(
        comesTrue([&] { return clerk_.asked().contains("verdict receipt last.csv"); }, 60s));
    const auto began = std::chrono::steady_clock::now();
    EXPECT_EQ(agent_.stop(), 0) << "with an answer outstanding";
    EXPECT_LT(std::chrono::steady_clock::now() - began, 5s);
    EXPECT_EQ(home_.read("in/receipt last.csv"), "paid");
}

TEST_F(DobbinAgent, saysWhyDobbinCouldNotAnswerAndWaitsForHimOnlyWhenAsked) {
    mustRun({u"settings"_s, u"set"_s, u"ai.localHost"_s, server_.host()});
    mustRun({u"folder"_s, u"add"_s, in_, u"--timing"_s, u"manual"_s});
    const QString rules = QString::fromStdString(
        home_.write("rules.json", encodeRules({receiptsAway(receipts_)}).toStdString()));
    mustRun({u"rule"_s, u"import"_s, rules, u"--folder"_s, in_});
    for (int i = 0; i < 30; ++i)
        drop("receipt " + std::to_string(i), "paid");

    const auto unasked = agent_.command({u"run"_s, in_});
    EXPECT_THAT(unasked.out, ::testing::HasSubstr("30 waiting for Dobbin"));
    EXPECT_THAT(unasked.err, ::testing::HasSubstr("--wait"));
    EXPECT_TRUE(clerk_.asked().empty());

    server_.haveModels({});
    const auto refused = agent_.command({u"run"_s, u"--wait"_s, in_});
    EXPECT_THAT(refused.err, ::testing::HasSubstr("Dobbin could not answer: "));
    EXPECT_FALSE(home_.has("Receipts"));

    server_.haveModels({u"clerk:latest"_s});
    const auto answered = agent_.command({u"run"_s, u"--wait"_s, in_});
    EXPECT_EQ(answered.code, 0) << answered.err;
    EXPECT_TRUE(home_.has("Receipts/receipt 29")) << answered.out << answered.err;
    EXPECT_THAT(clerk_.verdictBatches(), ElementsAre(24, 6));
}

TEST_F(DobbinAgent, writesARuleAndAsksNothingAboutFilesBeforeItIsSaved) {
    const QString draft =
        uR"({"name":"File receipts","matchMode":"all","conditions":[{"attribute":"Dobbin says it",
        "operator":"is","value":"a receipt","sizeUnit":"MB"}],"actions":[{"type":"Move to folder",
        "destination":"/nowhere","renamePattern":"","tag":"none","sortBy":"none"}],"note":""})"_s;
    mustRun({u"settings"_s, u"set"_s, u"ai.localHost"_s, server_.host()});
    drop("receipt.csv", "paid");
    ASSERT_TRUE(agent_.start()) << agent_.said();
    mustRun({u"folder"_s, u"add"_s, in_});
    server_.play("/api/chat", ModelServer::chatAnswer(draft));
    QStringList command{u"write-rule"_s, in_, u"File receipts"_s};
    const auto shown = agent_.command(command);
    EXPECT_THAT(shown.out, ::testing::HasSubstr("Would ask Dobbin about 1 of 1 file: receipt.csv"));
    const auto refused = agent_.command(command << u"--save"_s);
    EXPECT_EQ(refused.code, 1);
    EXPECT_THAT(refused.err, ::testing::HasSubstr("--anyway"));
    mustRun({u"run"_s, u"--wait"_s, in_});
    EXPECT_EQ(server_.requests("/api/chat").size(), 1) << "what was shown is what is saved";
    mustRun(command << u"--anyway"_s);
    EXPECT_THAT(agent_.command({u"rule"_s, u"list"_s, u"--folder"_s, in_}).out,
                ::testing::HasSubstr("If Dobbin says it's a receipt → Move to nowhere"));
    EXPECT_EQ(agent_.stop(), 0);
}

} // namespace
} // namespace quillon::testing
