#include "Scene.h"
#include "assistant/backends/AIManager.h"
#include "service/Services.h"
#include "store/SettingsTable.h"
#include "support/PrivateKeyring.h"
#include "ui/dobbin/ChatModel.h"
#include "ui/dobbin/OnboardingModel.h"
#include "ui/dobbin/SettingsModel.h"

#include <QTcpServer>
#include <QTcpSocket>

#include <sys/stat.h>

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Home = SampleHome::Contents;

void choose(Stage& stage, const QString& key, const QString& value) {
    if (const auto chosen = setSetting(stage.services.settings(), *findSetting(key), value);
        !chosen)
        qFatal("%s", qUtf8Printable(chosen.error().message));
}

Scene chat(const QString& name, const std::function<void(Stage&)>& arrange = {}) {
    return {.name = name,
            .arrange =
                [arrange](Stage& stage) {
                    if (arrange)
                        arrange(stage);
                    stage.model.chat()->focus();
                },
            .settling = 2s};
}

Scene settings(const QString& name, const std::function<void(Stage&)>& arrange = {},
               std::chrono::milliseconds settling = 1200ms) {
    return {.name = name,
            .window = u"SettingsWindow"_s,
            .arrange =
                [arrange](Stage& stage) {
                    if (arrange)
                        arrange(stage);
                    stage.model.settings()->setPage(u"dobbin"_s);
                },
            .settling = settling};
}

/// A keyring that is there as long as the program.
PrivateKeyring& keyring(const QByteArray& password) {
    static PrivateKeyring keyring;
    qputenv("DBUS_SESSION_BUS_ADDRESS", keyring.address().toUtf8());
    if (!keyring.start(password))
        qFatal("there is no keyring");
    return keyring;
}

void saveKey(Stage& stage) {
    keyring("secret");
    choose(stage, u"ai.claudeHost"_s, stage.server.host());
    choose(stage, u"ai.useClaude"_s, u"true"_s);
    choose(stage, u"ai.readContents"_s, u"true"_s);
    stage.server.play("/v1/models", ModelServer::Answer{.body = "{}"});
    stage.model.settings()->claude()->saveKey(u"sk-ant-sample-7f3Q"_s);
    for (int i = 0; i < 128; ++i)
        stage.services.assistant().countRequest();
}

/// A server that tells of a download once, and then says nothing more.
void startDownload(Stage& stage) {
    auto* const server = new QTcpServer(&stage.model);
    server->listen(QHostAddress::LocalHost);
    QObject::connect(server, &QTcpServer::newConnection, server, [server] {
        QTcpSocket* const socket = server->nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket] {
            const bool isPull = socket->readAll().contains("/api/pull");
            socket->write("HTTP/1.1 200 OK\r\n\r\n");
            socket->write(isPull ? R"({"digest":"a","total":4700000000,"completed":2940000000})"
                                 : R"({"models":[]})");
            socket->write("\n");
            if (!isPull)
                socket->disconnectFromHost();
        });
    });
    choose(stage, u"ai.localHost"_s, u"http://127.0.0.1:%1"_s.arg(server->serverPort()));
    stage.model.settings()->onDevice()->download();
}

Scene onboarding(const QString& name, int step, const std::function<void(Stage&)>& arrange = {}) {
    return {.name = name,
            .home = Home::noFolders,
            .isFirstRun = true,
            .arrange = [step, arrange](Stage& stage) {
                if (arrange)
                    arrange(stage);
                while (stage.model.onboarding()->step() < step)
                    stage.model.onboarding()->next();
            }};
}

} // namespace

std::vector<Scene> dobbinScenes() {
    Scene general = settings(u"settings-general"_s);
    general.arrange = [](Stage& stage) {
        stage.desktop.startsAtLogin = true;
        choose(stage, u"notificationsEnabled"_s, u"true"_s);
    };
    Scene emptyChat = chat(u"chat-empty"_s);
    emptyChat.home = Home::noFolders;
    return {
        chat(u"chat"_s),
        chat(u"chat-thinking"_s,
             [](Stage& stage) {
                 stage.server.play("/api/chat", ModelServer::Answer{.isSilent = true});
                 stage.model.chat()->ask(u"Why wasn’t Setup.dmg trashed?"_s);
             }),
        chat(u"chat-error"_s,
             [](Stage& stage) {
                 stage.server.haveModels({});
                 stage.model.chat()->ask(u"Why wasn’t Setup.dmg trashed?"_s);
             }),
        emptyChat,
        chat(u"chat-help"_s, [](Stage& stage) { stage.model.chat()->ask(u"What can you do?"_s); }),
        general,
        settings(u"settings-dobbin"_s),
        settings(u"settings-key-saved"_s, saveKey, 3s),
        settings(u"settings-key-wanted"_s,
                 [](Stage& stage) {
                     keyring("secret");
                     choose(stage, u"ai.useClaude"_s, u"true"_s);
                 }),
        settings(u"settings-key-refused"_s,
                 [](Stage& stage) {
                     keyring("secret");
                     choose(stage, u"ai.claudeHost"_s, stage.server.host());
                     stage.server.play("/v1/models",
                                       ModelServer::claudeError(401, u"invalid x-api-key"_s));
                     stage.model.settings()->claude()->saveKey(u"sk-ant-wrong"_s);
                 }),
        settings(u"settings-keyring-locked"_s,
                 [](Stage& stage) {
                     keyring("secret").stop();
                     keyring({});
                     choose(stage, u"ai.useClaude"_s, u"true"_s);
                 }),
        settings(u"settings-model-absent"_s,
                 [](Stage& stage) { choose(stage, u"ai.localHost"_s, u"http://127.0.0.1:9"_s); }),
        settings(u"settings-model-missing"_s, [](Stage& stage) { stage.server.haveModels({}); }),
        settings(u"settings-model-offered"_s,
                 [](Stage& stage) {
                     stage.server.haveModels({});
                     stage.model.settings()->onDevice()->askForDownload();
                 }),
        settings(u"settings-model-downloading"_s, startDownload),
        onboarding(u"onboarding-welcome"_s, 0),
        onboarding(u"onboarding"_s, 1),
        onboarding(u"onboarding-denied"_s, 1,
                   [](Stage& stage) {
                       const std::string desktop = stage.home.at("Desktop");
                       ::chmod(desktop.c_str(), 0);
                       QObject::connect(&stage.model, &QObject::destroyed,
                                        [desktop] { ::chmod(desktop.c_str(), 0755); });
                   }),
        onboarding(u"onboarding-quiet"_s, 2),
        onboarding(u"onboarding-dobbin"_s, 3),
        onboarding(u"onboarding-dobbin-missing"_s, 3,
                   [](Stage& stage) { stage.server.haveModels({}); }),
    };
}

} // namespace quillon::testing
