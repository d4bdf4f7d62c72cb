#include "support/AIBench.h"
#include "support/PrintQt.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using testing::AIBench;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::ModelServer;

namespace {

const QString cutShort = u"Claude's reply didn't make sense to Quillon. Try rephrasing."_s;

QByteArrayList pathsOf(const ModelServer& server) {
    QByteArrayList paths;
    for (const ModelServer::Request& request : server.requests())
        paths.append(request.path);
    return paths;
}

TEST(AIManager, AsksClaudeAsTheServiceWantsToBeAsked) {
    AIBench bench;
    bench.useClaude();
    bench.settings.values[u"ai.claudeModel"_s] = u"claude-opus-5-5"_s;
    bench.server.play("/v1/messages", ModelServer::claudeAnswer(u"Hay"_s));
    const QByteArray schema = R"({"type":"object","properties":{"z":{},"a":{}}})";
    AIRequest request{.system = u"You are Dobbin."_s,
                      .messages = {{AIMessage::Role::user, u"Hi"_s},
                                   {AIMessage::Role::assistant, u"Hello"_s},
                                   {AIMessage::Role::user, u"“ü”\n"_s}},
                      .schema = schema};
    EXPECT_EQ(bench.ask(request), u"Hay"_s);
    request.schema.reset();
    request.cheap = true;
    EXPECT_EQ(bench.ask(request), u"Hay"_s);

    const auto requests = bench.server.requests();
    ASSERT_EQ(requests.size(), 2);
    EXPECT_EQ(requests[0].method, "POST");
    EXPECT_EQ(requests[0].headers["x-api-key"], "sk-test-1234");
    EXPECT_EQ(requests[0].headers["anthropic-version"], "2023-06-01");
    EXPECT_EQ(requests[0].headers["content-type"], "application/json");
    EXPECT_TRUE(requests[0].body.contains(schema)) << "as it stands";
    const QJsonObject expected = QJsonDocument::fromJson(R"({
        "model":"claude-opus-5-5","max_tokens":8000,"system":"You are Dobbin.","messages":[
        {"role":"user","content":"Hi"},{"role":"assistant","content":"Hello"},
        {"role":"user","content":"“ü”\n"}],"output_config":{"effort":"low","format":{
        "type":"json_schema","schema":{"type":"object","properties":{"z":{},"a":{}}}}}})")
                                     .object();
    EXPECT_EQ(requests[0].json(), expected);
    EXPECT_EQ(requests[1].json()[u"model"_s], u"claude-haiku-5-5"_s);
    EXPECT_EQ(requests[1].json()[u"output_config"_s], (QJsonObject{{u"effort"_s, u"low"_s}}));
}

TEST(AIManager, AsksTheLocalModelAsItsServerWantsToBeAsked) {
    AIBench bench;
    bench.settings.values[u"ai.useClaude"_s] = u"true"_s; // but there is no key
    bench.server.haveModels({u"gpt-oss:120b-cloud"_s, u"llama3.2:latest"_s});
    bench.server.play("/api/chat", ModelServer::chatAnswer(uR"({"a":1})"_s));
    const QByteArray schema = R"({"type":"object","required":["a"]})";
    EXPECT_EQ(bench.ask({.system = u"You are Dobbin."_s,
                         .messages = {{.text = u"A"_s}, {.text = u"B"_s}},
                         .schema = schema}),
              uR"({"a":1})"_s);
    EXPECT_THAT(pathsOf(bench.server), ElementsAre("/api/tags", "/api/show", "/api/chat"));
    const QJsonObject expected{
        {u"model"_s, u"llama3.2:latest"_s},
        {u"stream"_s, false},
        {u"think"_s, false},
        {u"truncate"_s, false},
        {u"options"_s, QJsonObject{{u"temperature"_s, 0.2}, {u"num_ctx"_s, 8192}}},
        {u"format"_s, QJsonDocument::fromJson(schema).object()},
        {u"messages"_s,
         QJsonArray{
             QJsonObject{{u"role"_s, u"system"_s},
                         {u"content"_s, u"You are Dobbin.\n\nAnswer with JSON that fits "
                                        "this schema:\n"_s +
                                            QString::fromUtf8(schema)}},
             QJsonObject{{u"role"_s, u"user"_s},
                         {u"content"_s, u"Earlier in this conversation:\nUser: A\n\nB"_s}}}}};
    EXPECT_EQ(bench.server.requests("/api/chat").first().json(), expected);
    EXPECT_EQ(bench.manager->requestsThisMonth(), 0) << "only Claude's are counted";
    EXPECT_EQ(bench.manager->status().kind, OnDeviceStatus::Kind::available);
}

TEST(AIManager, StandsBadServers) {
    const ModelServer::Answer good = ModelServer::claudeAnswer(u"Hay"_s);
    const auto changed = [&](auto change) {
        ModelServer::Answer answer = good;
        change(answer);
        return answer;
    };
    using Answer = ModelServer::Answer;
    const struct {
        const char* name;
        Answer answer;
        QString said; ///< the beginning of it
    } rows[] = {
        {"slow", changed([](Answer& a) { a.delay = 150ms; }), u"Hay"_s},
        {"byte by byte", changed([](Answer& a) { a.chunk = 1; }), u"Hay"_s},
        {"much", changed([](Answer& a) { a.padding = mostReplyBytes - a.body.size(); }), u"Hay"_s},
        {"too much", changed([](Answer& a) { a.padding = 64 * mostReplyBytes; }), cutShort},
        {"cut off", changed([](Answer& a) { a.cutAfter = 20; }), u"Couldn't reach Claude: "_s},
        // Which Qt may take for the end, and then it is no JSON.
        {"cut between chunks", changed([](Answer& a) {
             a.chunk = 7;
             a.cutAfter = 21;
         }),
         u"C"_s},
        {"silent", changed([](Answer& a) { a.isSilent = true; }),
         u"Couldn't reach Claude: The request timed out."_s},
        {"hangs up", {.raw = ""}, u"Couldn't reach Claude: "_s},
        {"no protocol", {.raw = "250 OK, mail me\r\n\r\n"}, u"Couldn't reach Claude: "_s},
        {"repeats the key", ModelServer::claudeError(400, u"no sk-test-1234 here"_s),
         u"no … here"_s},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        AIBench bench({.claude = {.send = 1s}});
        bench.useClaude();
        bench.server.play("/v1/messages", row.answer);
        EXPECT_THAT(bench.ask().toStdString(), ::testing::StartsWith(row.said.toStdString()));
        EXPECT_EQ(bench.server.requests().size(), 1) << "nothing is tried again";
        EXPECT_EQ(bench.manager->requestsThisMonth(), row.said == u"Hay" ? 1 : 0);
        EXPECT_LT(bench.server.bytesSent(), 4 * mostReplyBytes);
    }
}

TEST(AIManager, GivesUpAnEndlessAnswerOfUnknownLength) {
    AIBench bench;
    bench.useClaude();
    bench.server.play("/v1/messages",
                      {.raw = "HTTP/1.1 200 OK\r\n\r\n" + QByteArray(4 * mostReplyBytes, ' ')});
    EXPECT_EQ(bench.ask(), cutShort);
}

TEST(AIManager, TakesTheKeyNowhereElse) {
    ModelServer elsewhere;
    for (const int status : {301, 302, 307, 308}) {
        AIBench bench;
        bench.useClaude();
        bench.server.play("/v1/messages",
                          {.status = status,
                           .headers = {{"location", elsewhere.host().toUtf8() + "/v1/messages"},
                                       {"set-cookie", "a=b"}}});
        EXPECT_EQ(bench.ask(), u"Claude returned an error (%1)."_s.arg(status));
        EXPECT_EQ(bench.ask(), u"Claude returned an error (%1)."_s.arg(status));
        EXPECT_FALSE(bench.server.requests().last().headers.contains("cookie"));
    }
    AIBench bench;
    bench.useClaude();
    bench.settings.values[u"ai.claudeHost"_s] = u"http://claude.example.com"_s;
    EXPECT_THAT(bench.ask().toStdString(), HasSubstr("Set ai.claudeHost to an address"));
    bench.settings.values[u"ai.useClaude"_s] = u"false"_s;
    bench.settings.values[u"ai.localHost"_s] = u"http://claude.example.com"_s;
    EXPECT_THAT(bench.ask().toStdString(), HasSubstr("isn't on this computer"));
    EXPECT_TRUE(elsewhere.requests().isEmpty());
    EXPECT_TRUE(bench.server.requests().isEmpty());
}

TEST(AIManager, GoesThroughNoProxyOnThisMachine) {
    const ModelServer proxy;
    qputenv("http_proxy", proxy.host().toUtf8());
    AIBench bench;
    bench.server.haveModels({u"a"_s});
    bench.server.play("/api/chat", ModelServer::chatAnswer(u"Hay"_s));
    EXPECT_EQ(bench.ask(), u"Hay"_s);
    qunsetenv("http_proxy");
    EXPECT_TRUE(proxy.requests().isEmpty());
}

TEST(AIManager, SaysWhyThereIsNoLocalModel) {
    AIBench bench({.local = {.look = 500ms, .respond = 500ms}});
    ModelServer& server = bench.server;
    QString& chosen = bench.settings.values[u"ai.localModel"_s];
    const auto fact = [](const char* body) { return ModelServer::Answer{.body = body}; };
    int changes = 0;
    QObject::connect(bench.manager.get(), &AIManager::statusChanged, [&] { ++changes; });
    QStringList said;
    const auto ask = [&] {
        said.append(bench.ask());
        EXPECT_EQ(bench.manager->status().message, said.last());
    };

    server.play("/api/tags", ModelServer::Answer{.isSilent = true});
    ask();
    server.play("/api/tags", ModelServer::Answer{.status = 503});
    ask();
    server.play("/api/tags", fact("<html>"));
    ask();
    server.haveModels({u"gpt-oss:120b-cloud"_s});
    ask();
    bench.manager->noteDownload(42);
    ask();
    bench.manager->noteDownload({});
    chosen = u"gpt-oss:120b-cloud"_s;
    ask();
    server.haveModels({u"a:latest"_s});
    chosen = u"b"_s;
    ask();
    chosen = u"a"_s;
    server.play("/api/show", fact(R"({"remote_model":"a"})"));
    ask();
    server.play("/api/show", fact(R"({"capabilities":["embedding"]})"));
    ask();
    EXPECT_EQ(
        said,
        (QStringList{
            u"Dobbin needs a local model. Install Ollama, then run “quillon model pull”."_s,
            u"The local model is loading. Dobbin will be ready soon."_s,
            u"The local model isn't available right now."_s,
            u"Dobbin needs a local model. Run “quillon model pull” to download one."_s,
            u"The local model is still downloading (42%). Dobbin will be ready soon."_s,
            u"The model “gpt-oss:120b-cloud” doesn't run on this computer, so Dobbin doesn't use "
            "it. Choose another with “quillon model use”."_s,
            u"The local model “b” isn't installed. Run “quillon model pull b” to download it, or "
            "choose another with “quillon model use”."_s,
            u"The model “a:latest” doesn't run on this computer, so Dobbin doesn't use it. Choose "
            "another with “quillon model use”."_s,
            u"The local model “a:latest” isn't made for answering. Choose another with “quillon "
            "model use”."_s}));
    EXPECT_EQ(changes, 8) << "the first is what it starts with";
    EXPECT_TRUE(server.requests("/api/chat").isEmpty()) << "nothing was told to any of them";
}

TEST(AIManager, TellsSomebodyWithAKeyOfTheirKeyring) {
    AIBench bench;
    bench.useClaude();
    bench.keychain.refusal = Error{ErrorKind::locked, u"The keyring is locked"_s};
    EXPECT_EQ(bench.ask(), u"The keyring is locked"_s);
    EXPECT_EQ(QCoro::waitFor(bench.manager->whyUnavailable()), u"The keyring is locked."_s);
    bench.server.haveModels({u"llama3.2:latest"_s});
    EXPECT_EQ(QCoro::waitFor(bench.manager->whyUnavailable()), QString());
    bench.server.play("/api/chat", ModelServer::chatAnswer(u"Hay"_s));
    EXPECT_EQ(bench.ask(), u"Hay"_s);
}

TEST(AIManager, SavesAKeyOnlyWhenItIsGood) {
    AIBench bench;
    AIManager& manager = *bench.manager;
    const auto save = [&](const QString& typed) {
        const auto saved = QCoro::waitFor(manager.saveKey(typed));
        return saved ? u"saved"_s : saved.error().message;
    };
    QString& kept = bench.keychain.kept[u"claude-api-key"_s];
    kept = u"sk-old"_s;
    EXPECT_TRUE(QCoro::waitFor(manager.loadKey()));
    const auto nothingChanged = [&] {
        return bench.keychain.kept[u"claude-api-key"_s] == u"sk-old" &&
               manager.keySuffix() == u"-old" && bench.forgotten == 0;
    };

    EXPECT_EQ(save(u" \n"_s), u"Add your Claude API key in Settings → Dobbin → Advanced."_s);
    EXPECT_EQ(save(u"a\r\nb: c"_s),
              u"Claude didn't accept that API key. Check it in Settings → Dobbin → Advanced."_s);
    EXPECT_TRUE(bench.server.requests().isEmpty());

    bench.server.play("/v1/models", ModelServer::claudeError(401, u"no"_s));
    EXPECT_EQ(save(u"sk-test"_s),
              u"Claude didn't accept that API key. Check it in Settings → Dobbin → Advanced."_s);
    EXPECT_EQ(bench.server.requests().last().query, "limit=1");
    EXPECT_EQ(bench.server.requests().last().headers["anthropic-version"], "2023-06-01");
    EXPECT_TRUE(nothingChanged());

    bench.server.play("/v1/models", {.body = "{}"});
    bench.keychain.refusal = Error{ErrorKind::locked, u"The keyring is locked"_s};
    EXPECT_EQ(save(u"sk-test"_s),
              u"Quillon couldn't save the key to your keyring. The keyring is locked"_s);
    EXPECT_FALSE(QCoro::waitFor(manager.removeKey()));
    EXPECT_TRUE(nothingChanged());

    bench.keychain.refusal.reset();
    EXPECT_EQ(save(u"  sk-test\n"_s), u"saved"_s);
    EXPECT_EQ(bench.keychain.kept[u"claude-api-key"_s], u"sk-test"_s);
    EXPECT_EQ(bench.server.requests().last().headers["x-api-key"], "sk-test");
    EXPECT_EQ(manager.keySuffix(), u"test"_s);
    EXPECT_EQ(bench.forgotten, 1);

    EXPECT_TRUE(QCoro::waitFor(manager.removeKey()));
    EXPECT_TRUE(QCoro::waitFor(manager.removeKey()));
    EXPECT_EQ(manager.keySuffix(), QString());
    EXPECT_TRUE(bench.keychain.kept.isEmpty());
}

TEST(AIManager, ReadsItsSettingsAndCountsByMonth) {
    AIBench bench;
    AIManager& manager = *bench.manager;
    EXPECT_TRUE(manager.suggestRules());
    EXPECT_FALSE(manager.readContents());
    EXPECT_EQ(manager.claudeModel(), ClaudeModel::sonnet);
    auto& values = bench.settings.values;
    values[u"ai.suggestRules"_s] = u"7"_s;
    values[u"ai.claudeModel"_s] = u"gpt-4"_s;
    EXPECT_TRUE(manager.suggestRules());
    EXPECT_EQ(manager.claudeModel(), ClaudeModel::sonnet);
    EXPECT_TRUE(manager.setProperty("claudeModel", QVariant::fromValue(ClaudeModel::haiku)));
    EXPECT_EQ(values[u"ai.claudeModel"_s], u"claude-haiku-5-5"_s);
    EXPECT_EQ(manager.claudeModel(), ClaudeModel::haiku);

    using namespace std::chrono;
    bench.clock.set(sys_days(2026y / 2 / 15));
    manager.countRequest();
    manager.countRequest();
    EXPECT_EQ(manager.requestsThisMonth(), 2);
    bench.clock.set(sys_days(2026y / 3 / 15));
    EXPECT_EQ(manager.requestsThisMonth(), 0);
    EXPECT_EQ(values[u"ai.usage.count"_s], u"2"_s) << "left until the next request";
    manager.countRequest();
    EXPECT_EQ(values[u"ai.usage.month"_s], u"2026-3"_s);
    EXPECT_EQ(values[u"ai.usage.count"_s], u"1"_s);
}

TEST(AIManager, AnswersManyAtOnceAndEndsWithoutHarm) {
    AIBench bench;
    bench.useClaude();
    bench.server.play("/v1/messages", [](const ModelServer::Request& request) {
        const QString text = request.json()[u"messages"_s][0][u"content"_s].toString();
        ModelServer::Answer answer = ModelServer::claudeAnswer(text);
        answer.delay = 20ms;
        answer.isSilent = text == u"7";
        return answer;
    });
    QStringList answers;
    std::vector<QCoro::Task<void>> tasks;
    for (int i = 0; i < 8; ++i)
        tasks.push_back(bench.manager->send({.messages = {{.text = QString::number(i)}}})
                            .then([&](const Expected<QString>& answer) {
                                answers.append(answer ? *answer : answer.error().message);
                            }));
    for (int i = 0; i < 7; ++i)
        QCoro::waitFor(tasks[std::size_t(i)]);
    EXPECT_EQ(answers.size(), 7);
    EXPECT_EQ(bench.manager->requestsThisMonth(), 7);
    bench.manager.reset();
    ASSERT_EQ(answers.size(), 8) << "nobody waits for ever";
    EXPECT_EQ(answers.last(), u"Couldn't reach Claude: The request was given up."_s);
}

} // namespace
} // namespace quillon
