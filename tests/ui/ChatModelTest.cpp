#include "ui/dobbin/ChatModel.h"

#include "assistant/DobbinJudge.h"
#include "model/Uuid.h"
#include "support/AIBench.h"
#include "support/AppStoreBench.h"
#include "support/PrintQt.h"
#include "support/SystemTimeZone.h"

#include <QDeadlineTimer>
#include <gmock/gmock.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString help = u"What can you do?"_s;

class ChatModelTest : public ::testing::Test {
protected:
    ChatModelTest() {
        ai.server.haveModels({u"phi4:latest"_s});
        start();
    }

    void start() {
        model.reset();
        chat.reset();
        model = std::make_unique<ChatModel>(ChatModel::Surroundings{
            .store = *bench.store,
            .settings = bench.settings,
            .clock = bench.clock,
            .sheets = sheets,
            .toasts = toasts,
            .chat = [this]() -> DobbinChat& { return *(chat = makeChat()); },
            .assistant = [this]() -> AIManager& { return *ai.manager; },
            .writeRule =
                [this](const QString&, const QString& sentence) {
                    written = sentence;
                    sheets.open(u"RuleEditorSheet"_s);
                }});
        QObject::connect(model.get(), &ChatModel::answered,
                         [this](const QString& words) { spoken.append(words); });
    }
    std::unique_ptr<DobbinChat> makeChat() {
        return std::make_unique<DobbinChat>(
            DobbinChat::Surroundings{.store = *bench.store,
                                     .platform = bench.platform,
                                     .judge = judge,
                                     .storage = bench.disk.storage,
                                     .settings = bench.settings,
                                     .background = bench.background,
                                     .assistant = [this]() -> AIManager& { return *ai.manager; }},
            bench.disk.places.chat());
    }
    bool until(const std::function<bool()>& isSo) {
        for (QDeadlineTimer patience(20s); !isSo() && !patience.hasExpired();) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
            bench.background.finish();
        }
        return isSo();
    }
    void askAndWait(const QString& question) {
        model->ask(question);
        ASSERT_TRUE(until([this] { return !model->isThinking(); }));
    }
    /// Answers, and then a list of one change.
    void playChange(const QString& answer, const QString& type, const QString& rule,
                    const QString& description = {}) {
        const QString list =
            u"{\"actions\":[{\"type\":\"%1\",\"folder\":\"in\",\"rule\":\"%2\","
            "\"ruleOrder\":[],\"description\":\"%3\"}]}"_s.arg(type, rule, description);
        ai.server.play("/api/chat",
                       std::deque{ModelServer::chatAnswer(answer), ModelServer::chatAnswer(list)});
    }
    [[nodiscard]] const std::vector<ChatRow>& rows() {
        return static_cast<KeyedRows<ChatRow>*>(model->turns())->rows();
    }
    [[nodiscard]] bool isDone() { return rows().back().changes[0].toMap()[u"isDone"_s].toBool(); }

    SystemTimeZone zone{"UTC"};
    AIBench ai;
    AppStoreBench bench;
    DobbinJudge judge{bench.platform.fileSystem, bench.clock};
    Sheets sheets;
    Toasts toasts;
    std::unique_ptr<DobbinChat> chat;
    std::unique_ptr<ChatModel> model;
    QStringList spoken;
    QString written;
};

TEST_F(ChatModelTest, TakesTheConversationFromItsFileWhenItIsFirstOpen) {
    EXPECT_FALSE(model->isOpen());
    EXPECT_FALSE(chat);
    model->toggle();
    askAndWait(help);
    start();
    EXPECT_TRUE(model->isOpen()) << "is kept";
    EXPECT_EQ(rows().size(), 2U);
    EXPECT_EQ(model->lastQuestion(), help);
    model->toggle();
    start();
    EXPECT_FALSE(model->isOpen());
    EXPECT_FALSE(chat);
}

TEST_F(ChatModelTest, SaysANewAnswerOnceAndOffersExamplesForTheFirstQuestionOfADay) {
    model->setOpen(true);
    EXPECT_EQ(model->examples().size(), 4);
    EXPECT_FALSE(model->ask(u" \n"_s));
    askAndWait(help);
    ASSERT_EQ(spoken.size(), 1);
    EXPECT_EQ(spoken[0], u"Dobbin: "_s + rows().back().text);
    EXPECT_THAT(model->examples(), IsEmpty());
    Q_EMIT bench.store->recentLogsChanged();
    EXPECT_EQ(spoken.size(), 1);
    bench.pass(24h);
    EXPECT_EQ(model->examples().size(), 2);
}

TEST_F(ChatModelTest, CarriesOutAnOfferedChangeOnceAndSaysWhatHappened) {
    const QUuid folder = bench.addFolder("in");
    bench.addRule(bench.mover(u"pdf"_s, "Papers"), folder);
    playChange(u"Turn off Move pdf in in."_s, u"turnOffRule"_s, u"Move pdf"_s);
    model->setOpen(true);
    askAndWait(u"Stop moving my papers"_s);
    ASSERT_EQ(rows().back().changes.size(), 1);
    EXPECT_FALSE(isDone());
    EXPECT_TRUE(chat->turns().back().wasShown);
    model->carryOut(rows().back().key, 0);
    EXPECT_TRUE(isDone());
    EXPECT_FALSE(bench.store->folder(folder)->rules.front().isEnabled);
    EXPECT_EQ(toasts.sentence(), u"“Move pdf” is now off."_s);
    model->carryOut(rows().back().key, 0);
    EXPECT_EQ(toasts.sentence(), u"That has been done already."_s);
}

TEST_F(ChatModelTest, CountsAWrittenRuleAsDoneOnceItIsSaved) {
    const QUuid folder = bench.addFolder("in");
    playChange(u"I can write a rule that moves scans to Scans."_s, u"writeRule"_s, {},
               u"Move scans to Scans"_s);
    model->setOpen(true);
    askAndWait(u"Move my scans"_s);
    ASSERT_EQ(rows().back().changes.size(), 1);
    model->carryOut(rows().back().key, 0);
    EXPECT_EQ(written, u"Move scans to Scans"_s);
    sheets.close();
    EXPECT_FALSE(isDone()) << "nothing was saved";
    model->carryOut(rows().back().key, 0);
    bench.addRule(Rule(), folder);
    sheets.close();
    EXPECT_TRUE(isDone());
    model->carryOut(rows().back().key, 5); // there is none
}

TEST_F(ChatModelTest, GivesUpOnAQuestionAndAsksItAgain) {
    model->setOpen(true);
    ai.server.play("/api/chat", ModelServer::Answer{.isSilent = true});
    model->ask(u"Where is it?"_s);
    ASSERT_TRUE(until([this] { return !ai.server.requests("/api/chat").isEmpty(); }));
    model->ask(u"And that?"_s);
    model->stop();
    EXPECT_FALSE(model->isThinking());
    ASSERT_EQ(rows().size(), 4U);
    EXPECT_TRUE(rows()[1].isError && rows()[3].isError);

    ai.server.play("/api/chat", ModelServer::chatAnswer(u"In Papers."_s));
    model->askAgain(QString(rows()[1].key));
    ASSERT_TRUE(until([this] { return !model->isThinking(); }));
    ASSERT_EQ(rows().size(), 6U) << "what was given up says nothing any more";
    EXPECT_EQ(rows()[4].text, u"Where is it?"_s);
    EXPECT_EQ(rows()[5].text, u"In Papers."_s);
}

TEST_F(ChatModelTest, TellsWhereHeThinksAndThatTheFileCantBeWritten) {
    model->setOpen(true);
    EXPECT_EQ(model->place(), u"On this computer"_s);
    std::filesystem::create_directories(bench.disk.places.chat() + "/x");
    ai.useClaude();
    askAndWait(help);
    ASSERT_TRUE(until([this] { return model->place() == u"Claude Sonnet 5.5"; }));
    EXPECT_TRUE(model->notice().startsWith(u"The conversation can’t be saved ("))
        << model->notice().toStdString();
}

TEST(ChatRows, LetOnlyWhatTheLogStillHoldsBeUndone) {
    const LogEntry moved{.undoable = true, .originalPath = u"/a"_s};
    LogEntry undone = moved;
    undone.id = QUuid::createUuid();
    LogEntry dropped = moved;
    dropped.id = QUuid::createUuid();
    const ChatTurn turn{.entries = {moved, undone, dropped}};
    undone.undoable = false;
    const auto rows = chatRows({turn}, {undone, moved}, {});
    QStringList canDo;
    for (const QVariant& entry : rows[0].entries)
        canDo.append(u"%1 %2"_s.arg(entry.toMap()[u"canReveal"_s].toInt())
                         .arg(entry.toMap()[u"canUndo"_s].toInt()));
    EXPECT_THAT(canDo, ElementsAre(u"1 1"_s, u"1 0"_s, u"0 0"_s));
}

} // namespace
} // namespace quillon::testing
