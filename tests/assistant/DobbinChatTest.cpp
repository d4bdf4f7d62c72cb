#include "assistant/DobbinChat.h"

#include "assistant/DobbinJudge.h"
#include "assistant/EntriesShown.h"
#include "assistant/HelpQuestion.h"
#include "support/AIBench.h"
#include "support/AppStoreBench.h"
#include "support/PrintQt.h"

#include <QDeadlineTimer>
#include <QJsonArray>
#include <QRegularExpression>
#include <gmock/gmock.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const QString help = u"What can you do?"_s;

class DobbinChatTest : public ::testing::Test {
protected:
    DobbinChatTest() {
        ai_.server.haveModels({u"phi4:latest"_s});
        start();
    }

    /// As after a restart.
    void start(Storage* storage = nullptr) {
        chat_.reset();
        chat_ = std::make_unique<DobbinChat>(
            DobbinChat::Surroundings{.store = *bench_.store,
                                     .platform = bench_.platform,
                                     .judge = judge_,
                                     .storage = storage ? *storage : bench_.disk.storage,
                                     .settings = bench_.settings,
                                     .background = bench_.background,
                                     .assistant = [this]() -> AIManager& { return *ai_.manager; }},
            path_);
    }
    bool until(const std::function<bool()>& isSo) {
        for (QDeadlineTimer patience(20s); !isSo() && !patience.hasExpired();) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
            bench_.background.finish();
        }
        return isSo();
    }
    ChatTurn ask(const QString& question) {
        chat_->ask(question);
        EXPECT_TRUE(until([this] { return !chat_->isThinking(); }));
        return chat_->turns().back();
    }
    void playLocal(const std::deque<QString>& texts) {
        std::deque<ModelServer::Answer> answers;
        for (const QString& text : texts)
            answers.push_back(ModelServer::chatAnswer(text));
        ai_.server.play("/api/chat", answers);
    }
    /// The texts, an error with a "!" before it, in order.
    [[nodiscard]] QStringList texts() const {
        QStringList found;
        for (const ChatTurn& turn : chat_->turns())
            found.append((turn.isError ? u"!"_s : QString()) + turn.text);
        return found;
    }
    [[nodiscard]] std::vector<ChatTurn> saved() {
        return ChatFile(bench_.disk.storage, path_).load({})->turns;
    }
    /// A watched folder in which a rule has moved so many PDFs away from a later one.
    void tidyInvoices(int count) {
        folderID_ = bench_.addFolder("in");
        Rule later = bench_.mover(u"pdf"_s, "Late");
        later.name = u"File late"_s;
        bench_.addRule(bench_.mover(u"pdf"_s, "Invoices"), folderID_);
        bench_.addRule(later, folderID_);
        for (int i = 0; i < count; ++i) {
            const std::string name = "in/invoice" + std::to_string(i) + ".pdf";
            bench_.disk.machine.write(name, "paid");
            bench_.touch(name, bench_.clock.now() - 1h);
        }
        bench_.runs([&] { bench_.store->runRules(folderID_, RunCause::asked); });
        ASSERT_EQ(bench_.store->recentLogs().size(), std::size_t(count));
    }

    AIBench ai_;
    AppStoreBench bench_;
    DobbinJudge judge_{bench_.platform.fileSystem, bench_.clock};
    const std::string path_ = bench_.disk.places.chat();
    QUuid folderID_;
    std::unique_ptr<DobbinChat> chat_;
};

TEST(EntriesShown, areThoseThatTheAnswerSpeaksOf) {
    const auto entry = [](const QString& file, const QString& rule, const QString& now = {}) {
        return LogEntry{.fileName = file, .ruleName = rule, .currentPath = u"/x/"_s + now};
    };
    const std::vector<LogEntry> entries{
        entry(u"a.pdf"_s, u"File bills"_s, u"2026 bill.pdf"_s), entry(u"data.pdf"_s, u"Bills"_s),
        entry(u"b.pdf"_s, u"Bills"_s), entry(u"c.pdf"_s, u"Bills"_s), entry(u"d"_s, u"Bills"_s)};
    const struct {
        QString answer;
        QString shown;
    } rows[] = {
        {u"“A.pdf” went to Bills."_s, u"a.pdf"_s},
        {u"It is called 2026 bill.pdf now."_s, u"a.pdf"_s},
        {u"data.pdf, and b.pdf."_s, u"data.pdf b.pdf"_s},
        {u"“Bills” took them."_s, u"data.pdf b.pdf c.pdf"_s},
        {u"I found nothing; see xa.pdf.zip or billsb."_s, u""_s},
    };
    for (const auto& row : rows) {
        QStringList shown;
        for (const LogEntry& each : entriesShown(row.answer, entries))
            shown.append(each.fileName);
        EXPECT_EQ(shown.join(u' '), row.shown) << row.answer.toStdString();
    }
}

TEST_F(DobbinChatTest, answersFromTheLogAndOffersChangesWithEitherBackend) {
    tidyInvoices(30);
    const QString said = u"invoice7.pdf is in Invoices. Move File late above Move pdf."_s;
    const QString changes =
        uR"({"actions":[{"type":"turnOffRule","folder":"“IN”","rule":"move pdf","ruleOrder":[],)"
        uR"("description":""},{"type":"turnOnRule","folder":"gone","rule":"x","ruleOrder":[],)"
        uR"("description":""}]})"_s;
    playLocal({u"Tidied."_s, said, changes});
    ai_.server.play("/v1/messages", std::deque{ModelServer::claudeAnswer(u"Tidied."_s),
                                               ModelServer::claudeAnswer(said),
                                               ModelServer::claudeAnswer(changes)});
    for (const bool withClaude : {false, true}) {
        SCOPED_TRACE(withClaude);
        const char* const path = withClaude ? "/v1/messages" : "/api/chat";
        if (withClaude)
            ai_.useClaude();
        EXPECT_THAT(ask(u"Which pdf invoices did you move?"_s).entries, IsEmpty());
        const ChatTurn answer = ask(u"Where did invoice7.pdf and the pdf invoices go?"_s);
        ASSERT_THAT(answer.entries, SizeIs(1));
        EXPECT_EQ(answer.entries[0].fileName, u"invoice7.pdf");
        EXPECT_TRUE(answer.entries[0].canUndo());
        ASSERT_THAT(answer.actions, SizeIs(2));
        EXPECT_EQ(answer.actions[0].label(), u"Turn off “Move pdf”");
        EXPECT_EQ(answer.actions[1].label(), u"Reorder rules in in");
        EXPECT_EQ(saved(), chat_->turns());

        const auto requests = ai_.server.requests(path);
        ASSERT_EQ(requests.size(), 3);
        QJsonArray messages = requests[1].json()[u"messages"_s].toArray();
        const QString last = messages.last()[u"content"_s].toString();
        messages.removeLast();
        const QString first = QString::fromUtf8(requests[0].body);
        EXPECT_EQ(first.count(QRegularExpression(u"“invoice\\d+\\.pdf” in "_s)),
                  withClaude ? 25 : 10);
        EXPECT_TRUE(first.contains(withClaude ? u"(25 of 30 matching entries)"_s
                                              : u"(10 of 30 matching entries)"_s));
        EXPECT_TRUE(
            last.endsWith(u"\n\nQuestion: Where did invoice7.pdf and the pdf invoices go?"_s));
        EXPECT_EQ(last.contains(u"User: Which pdf invoices did you move?\nDobbin: Tidied.\n\n"_s),
                  !withClaude);
        QStringList roles;
        for (const QJsonValue& message : messages)
            roles.append(message[u"role"_s].toString());
        EXPECT_EQ(roles, withClaude ? (QStringList{u"user"_s, u"assistant"_s, u"user"_s,
                                                   u"assistant"_s, u"user"_s, u"assistant"_s})
                                    : QStringList{u"system"_s});
        EXPECT_TRUE(requests[2].body.contains("Dobbin answered: invoice7.pdf is in Invoices."));
    }

    const QUuid turnID = chat_->turns().back().id;
    ASSERT_TRUE(chat_->apply(turnID, 0));
    EXPECT_FALSE(bench_.store->folder(folderID_)->rules[0].isEnabled);
    EXPECT_FALSE(chat_->apply(turnID, 2));
    start();
    EXPECT_TRUE(chat_->turns().back().actions[0].done);
    EXPECT_FALSE(chat_->turns().back().actions[1].done);
    EXPECT_FALSE(chat_->apply(turnID, 0)) << "once is enough";
}

TEST_F(DobbinChatTest, offersNoOrderThatTheAnswerArguesAgainst) {
    tidyInvoices(1);
    const QString against = u"Leave File late below Move pdf, for invoice0.pdf is a bill."_s;
    const struct {
        QString answer;
        QString list;
        std::size_t offered;
    } rows[] = {
        {against, uR"({"actions":[]})"_s, 0},
        {against, u"no idea"_s, 1},
        {u"Move pdf took invoice0.pdf, so File late never saw it."_s, {}, 1},
        {u"File late never saw invoice0.pdf."_s, {}, 0},
    };
    for (const auto& row : rows) {
        playLocal({row.answer, row.list});
        EXPECT_THAT(ask(u"Why not invoice0.pdf?"_s).actions, SizeIs(row.offered))
            << row.answer.toStdString() << row.list.toStdString();
    }
}

TEST_F(DobbinChatTest, answersOneQuestionAfterTheOther) {
    std::vector<std::function<void()>> waiting;
    QStringList answered;
    auto slow = ModelServer::chatAnswer(u"one"_s);
    slow.delay = 150ms;
    ai_.server.play("/api/chat", std::deque{slow, ModelServer::chatAnswer(u"three"_s)});
    const auto note = [&](const ChatTurn& turn) { answered.append(turn.text.left(5)); };
    EXPECT_FALSE(chat_->ask(u" \n\0"_s, note));
    chat_->ask(u"first?"_s, note);
    chat_->ask(help, note);
    bench_.clock.advance(-48h);
    chat_->ask(u"third?"_s, note);
    EXPECT_THAT(texts(), ElementsAre(u"first?"_s, help, u"third?"_s));
    EXPECT_EQ(saved().size(), 3U) << "a question is kept before it is answered";
    ASSERT_TRUE(until([&] { return ai_.server.requests("/api/chat").size() == 1; }));
    EXPECT_TRUE(chat_->isThinking());
    ASSERT_TRUE(until([&] { return !chat_->isThinking(); }));
    EXPECT_THAT(answered, ElementsAre(u"one"_s, helpAnswer().left(5), u"three"_s));
    const QStringList whole{u"first?"_s, u"one"_s, help, helpAnswer(), u"third?"_s, u"three"_s};
    EXPECT_EQ(texts(), whole);
    EXPECT_EQ(ai_.server.requests("/api/chat").size(), 2);
    start();
    EXPECT_EQ(texts(), whole) << "in their order, whatever the clock said";
}

TEST_F(DobbinChatTest, keepsTheLast60Turns) {
    for (int i = 0; i < 30; ++i)
        ask(help + QString::number(i));
    EXPECT_EQ(saved().front().text, help + u'0');
    ask(help + u"30"_s);
    EXPECT_THAT(saved(), SizeIs(turnCap));
    EXPECT_EQ(saved().front().text, help + u'1');
    EXPECT_EQ(ai_.server.requests().size(), 0);
    start();
    EXPECT_EQ(chat_->turns(), saved());
}

TEST_F(DobbinChatTest, saysWhyThereIsNoAnswerAndGoesOn) {
    auto cut = ModelServer::chatAnswer(u"half of it"_s);
    cut.cutAfter = 20;
    auto odd = ModelServer::chatAnswer(u"a\u0000b half of a pair"_s);
    odd.body.replace("half of a pair", "\\ud83d");
    ai_.server.play("/api/chat", std::deque{cut, odd, ModelServer::chatAnswer(u"fine"_s)});
    const ChatTurn failed = ask(u"a?"_s);
    EXPECT_TRUE(failed.isError && failed.text.startsWith(u"The local model couldn't answer: "_s))
        << failed.text.toStdString();
    EXPECT_EQ(chat_->turns().front().text, u"a?");
    ask(u"b?"_s);
    start();
    EXPECT_THAT(chat_->turns(), SizeIs(4)) << "whatever a model says can be read again";
    ask(u"c?"_s);
    const QByteArray sent = ai_.server.requests("/api/chat").last().body;
    EXPECT_TRUE(sent.contains("User: b?") && !sent.contains("a?")) << sent.constData();
    ai_.server.play("/api/chat", ModelServer::chatAnswer(u" \n"_s));
    EXPECT_TRUE(ask(u"blank?"_s).isError);
    ai_.server.haveModels({});
    EXPECT_TRUE(ask(u"d?"_s).text.contains(u"quillon model pull"_s));
}

/// A disk that reads or writes nothing for a while.
class FailingStorage final : public LinuxStorage {
public:
    bool reads = true;
    bool writes = true;

    Expected<QByteArray> readWhole(const std::string& path, std::uint64_t most) const override {
        return reads ? LinuxStorage::readWhole(path, most) : failure(ErrorKind::io, u"bad disk"_s);
    }
    Expected<void> writeDurably(const std::string& path, const QByteArray& bytes) override {
        return writes ? LinuxStorage::writeDurably(path, bytes)
                      : failure(ErrorKind::noSpace, u"full"_s);
    }
};

TEST_F(DobbinChatTest, losesNothingToABadDiskOrABrokenFile) {
    FailingStorage storage;
    storage.writes = false;
    start(&storage);
    ask(help);
    EXPECT_EQ(chat_->lastSaveError()->message, u"full");
    storage.writes = true;
    ask(help);
    EXPECT_FALSE(chat_->lastSaveError());
    EXPECT_THAT(saved(), SizeIs(4));

    storage.reads = false;
    start(&storage);
    ask(help);
    EXPECT_THAT(saved(), SizeIs(4)) << "what can't be read is not written over";
    EXPECT_TRUE(chat_->lastSaveError()->message.contains(u"bad disk"_s));
    storage.reads = true;
    ask(help);
    EXPECT_THAT(saved(), SizeIs(8));
    EXPECT_EQ(saved(), chat_->turns());

    for (const char* broken :
         {"", "{}", "[{\"isUser\":true}]", "[{\"isUser\":true,\"text\":\"a\\u0000\"}]",
          R"([{"isUser":false,"text":"","actions":[{"kind":"deleteAll"}]}])"}) {
        SCOPED_TRACE(broken);
        std::ofstream(path_, std::ios::trunc) << broken;
        start();
        EXPECT_THAT(chat_->turns(), IsEmpty());
        const QString warning = chat_->takeWarning().value_or(QString());
        const auto kept = QRegularExpression(u"kept as (/.*chat\\.json.*\\.unreadable-[-\\d]+),"_s)
                              .match(warning)
                              .captured(1);
        std::ifstream file(kept.toStdString());
        EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), broken)
            << warning.toStdString();
        EXPECT_FALSE(chat_->takeWarning());
        ask(help);
        EXPECT_THAT(saved(), SizeIs(2));
    }
}

TEST_F(DobbinChatTest, goesAwayInMidThought) {
    tidyInvoices(1);
    for (int stage = 0; stage < 4; ++stage) {
        SCOPED_TRACE(stage);
        start();
        auto slow = ModelServer::chatAnswer(u"Turn off “Move pdf”."_s);
        slow.delay = 100ms;
        ai_.server.play("/api/chat", slow);
        const auto asked = ai_.server.requests("/api/chat").size();
        bool isAnswered = false;
        chat_->ask(u"first?"_s, [&](const ChatTurn&) {
            isAnswered = true;
            chat_.reset();
        });
        chat_->ask(u"second?"_s);
        if (stage == 1)
            while (bench_.background.waiting() == 0)
                QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        if (stage == 2) {
            ASSERT_TRUE(until([&] { return ai_.server.requests("/api/chat").size() > asked; }));
        }
        if (stage == 3) {
            bench_.store->removeFolder(folderID_);
            ASSERT_TRUE(until([&] { return isAnswered; }));
            EXPECT_THAT(saved(), SizeIs(::testing::Ge(3U)));
        }
        chat_.reset();
        until([deadline = QDeadlineTimer(150ms)] { return deadline.hasExpired(); });
        EXPECT_EQ(isAnswered, stage == 3);
    }
}

TEST_F(DobbinChatTest, keepsNoModelAtWhatNobodyWaitsFor) {
    int hungUp = 0;
    for (const char* const path : {"/api/chat", "/v1/messages"}) {
        ai_.server.play(path, ModelServer::Answer{.isSilent = true});
        for (const bool isStopped : {true, false}) {
            chat_->ask(u"why?"_s);
            const auto asked = ai_.server.requests(path).size() + 1;
            ASSERT_TRUE(until([&] { return ai_.server.requests(path).size() == asked; })) << path;
            isStopped ? chat_->stop() : chat_.reset();
            ++hungUp;
            EXPECT_TRUE(until([&] { return ai_.server.hungUp() == hungUp; })) << path;
            if (isStopped)
                EXPECT_EQ(texts().back(), u"!Stopped before there was an answer."_s);
            else
                start();
        }
        ai_.useClaude();
    }
}

TEST_F(DobbinChatTest, remembersWhetherItsPanelIsOpen) {
    EXPECT_FALSE(chat_->isOpen());
    ASSERT_TRUE(chat_->setOpen(true));
    start();
    EXPECT_TRUE(chat_->isOpen());
    chat_->requestFocus();
    EXPECT_EQ(chat_->focusRequest(), 1);
}

} // namespace
} // namespace quillon::testing
