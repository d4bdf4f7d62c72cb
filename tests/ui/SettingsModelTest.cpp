#include "ui/dobbin/SettingsModel.h"

#include "support/AIBench.h"
#include "support/AppStoreBench.h"
#include "support/FakeDesktop.h"
#include "support/PrintQt.h"

#include <QDeadlineTimer>
#include <gmock/gmock.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

struct FullDiskLogin final : LoginItem {
    [[nodiscard]] bool isOn() const override { return false; }
    [[nodiscard]] Expected<void> setOn(bool) override {
        return failure(ErrorKind::noSpace, u"No space left on device"_s);
    }
};

class SettingsModelTest : public ::testing::Test {
protected:
    SettingsModelTest() {
        ai.server.haveModels({u"phi4:latest"_s});
        QObject::connect(&model, &SettingsModel::changed, [this] { ++changes; });
    }
    /// Nothing that was asked outlives the test.
    void TearDown() override {
        EXPECT_TRUE(until([this] { return !model.onDevice()->isChecking(); }));
    }
    bool until(const std::function<bool()>& isSo) {
        for (QDeadlineTimer patience(20s); !isSo() && !patience.hasExpired();)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return isSo();
    }
    void save(const QString& key) {
        model.claude()->saveKey(key);
        ASSERT_TRUE(until([this] { return !model.claude()->isSaving(); }));
    }
    void look() {
        model.onDevice()->check();
        ASSERT_TRUE(until([this] { return !model.onDevice()->isChecking(); }));
    }
    [[nodiscard]] QString card() {
        return model.onDevice()->badge() + u'|' + model.onDevice()->stepName();
    }

    AIBench ai;
    AppStoreBench bench;
    FakeDesktop desktop;
    FullDiskLogin login;
    bool introduced = false;
    SettingsModel model{{.store = *bench.store,
                         .settings = ai.settings,
                         .clock = bench.clock,
                         .storage = bench.disk.storage,
                         .background = bench.background,
                         .timers = bench.timers,
                         .fileChooser = desktop,
                         .fileManager = desktop,
                         .loginItem = login,
                         .assistant = [this]() -> AIManager& { return *ai.manager; },
                         .introduce = [this] { introduced = true; }}};
    int changes = 0;
};

TEST_F(SettingsModelTest, WhatIsSwitchedIsKept) {
    model.setShowDockIcon(false);
    model.setNotifies(true);
    model.claude()->setReadContents(true);
    model.claude()->setSuggestRules(false);
    model.claude()->setModel(2);
    model.claude()->setModel(7); // there is none
    const std::pair<QString, QString> kept[] = {{u"showDockIcon"_s, u"false"_s},
                                                {u"notificationsEnabled"_s, u"true"_s},
                                                {u"ai.readContents"_s, u"true"_s},
                                                {u"ai.suggestRules"_s, u"false"_s},
                                                {u"ai.claudeModel"_s, u"claude-opus-5-5"_s}};
    for (const auto& [key, value] : kept)
        EXPECT_EQ(ai.settings.values[key], value) << key.toStdString();
    model.setPaused(true);
    EXPECT_TRUE(bench.store->isPaused());
    model.setLaunchAtLogin(true);
    EXPECT_FALSE(model.launchAtLogin());
    EXPECT_EQ(model.error(), u"No space left on device."_s);
}

TEST_F(SettingsModelTest, ShowsWhatIsSetElsewhereWhileItIsOpen) {
    const std::size_t before = bench.timers.waiting();
    model.setShown(true);
    changes = 0;
    bench.timers.advance(3s);
    EXPECT_EQ(changes, 0) << "nothing is drawn anew for nothing";
    ai.settings.values[u"showDockIcon"_s] = u"false"_s;
    bench.timers.advance(1s);
    EXPECT_EQ(changes, 1);
    EXPECT_FALSE(model.showDockIcon());
    model.setShown(false);
    EXPECT_EQ(bench.timers.waiting(), before) << "and rests when it is closed";
}

TEST_F(SettingsModelTest, WritesTheReportAndSaysWhereItIs) {
    bench.addFolder("in");
    desktop.choice = bench.path("report.txt").toStdString();
    model.exportDiagnostics();
    EXPECT_TRUE(model.isExporting());
    bench.background.finish();
    EXPECT_EQ(model.exported(), u"The report is in "_s + bench.path("report.txt"));
    QFile report(bench.path("report.txt"));
    ASSERT_TRUE(report.open(QIODevice::ReadOnly));
    EXPECT_TRUE(report.readAll().contains("WATCHED FOLDERS (1)"));
    model.revealExported();
    EXPECT_EQ(desktop.revealed.back(), *desktop.choice);

    desktop.choice = bench.path("no/such/folder").toStdString();
    model.exportDiagnostics();
    bench.background.finish();
    EXPECT_TRUE(model.exported().isEmpty());
    EXPECT_TRUE(model.error().startsWith(u"The report can’t be written to "))
        << model.error().toStdString();

    desktop.choice = std::nullopt;
    model.exportDiagnostics();
    EXPECT_FALSE(model.isExporting());
    model.writeToSupport();
    EXPECT_TRUE(desktop.addresses.back().startsWith(u"mailto:"_s));
    EXPECT_TRUE(desktop.addresses.back().contains(u"support%20request"_s));
}

TEST_F(SettingsModelTest, ChecksAKeyBeforeItIsKept) {
    ClaudeSettings& claude = *model.claude();
    look();
    claude.setUseClaude(true);
    EXPECT_EQ(claude.keyCaption(), u"Until it's saved, Dobbin keeps using phi4:latest."_s);
    EXPECT_TRUE(claude.isEntering());
    save(u"  "_s);
    EXPECT_EQ(claude.keyError(), u"Add your Claude API key in Settings → Dobbin → Advanced."_s);

    ai.server.play("/v1/models", ModelServer::Answer{.body = "{}"});
    save(u" sk-test-7f3Q\n"_s);
    EXPECT_EQ(claude.keyText(), u"Key ending 7f3Q"_s);
    EXPECT_EQ(claude.note(), u"Key saved. Dobbin is now using Claude."_s);
    EXPECT_TRUE(claude.isNoteGood());
    EXPECT_FALSE(claude.isEntering());

    ai.server.play("/v1/models", ModelServer::claudeError(401, u"no"_s));
    claude.replaceKey();
    save(u"sk-wrong"_s);
    EXPECT_EQ(claude.keyError(),
              u"Claude didn't accept that API key. Check it in Settings → Dobbin → Advanced."_s);
    EXPECT_EQ(claude.keyText(), u"Key ending 7f3Q"_s) << "the old one stays";
    claude.dropReplacing();
    claude.removeKey();
    EXPECT_TRUE(until([&] { return !claude.hasKey(); }));
    EXPECT_TRUE(ai.keychain.kept.isEmpty());
}

TEST_F(SettingsModelTest, SaysThatTheKeyringIsLocked) {
    const QString sentence = u"Your keyring is locked. Unlock it to use Claude."_s;
    ai.keychain.refusal = Error{ErrorKind::locked, u"it is locked"_s};
    model.setPage(u"dobbin"_s);
    model.setShown(true);
    ASSERT_TRUE(until([this] { return model.claude()->isKeyringLocked(); }));
    EXPECT_EQ(model.claude()->keyCaption(), sentence);
    EXPECT_FALSE(model.claude()->isEntering());
    ai.server.play("/v1/models", ModelServer::Answer{.body = "{}"});
    save(u"sk-test"_s);
    EXPECT_TRUE(model.claude()->keyError().contains(u"locked"_s))
        << model.claude()->keyError().toStdString();
    ai.keychain.refusal.reset();
    ai.keychain.kept[u"claude-api-key"_s] = u"sk-test-1234"_s;
    model.claude()->open();
    EXPECT_TRUE(until([this] { return model.claude()->hasKey(); }));
    EXPECT_FALSE(model.claude()->isKeyringLocked());
}

TEST_F(SettingsModelTest, TellsHowThingsAreWithTheModelOnThisComputer) {
    const auto cardWith = [this](const QStringList& models, const QString& chosen) {
        ai.server.haveModels(models);
        ai.settings.values[u"ai.localModel"_s] = chosen;
        look();
        return card();
    };
    EXPECT_EQ(cardWith({u"phi4:latest"_s}, {}), u"Ready|check"_s);
    EXPECT_EQ(cardWith({}, {}), u"Needs a model|download"_s);
    EXPECT_EQ(cardWith({u"phi4:latest"_s}, u"other:1b"_s), u"Needs a model|download"_s);
    ai.settings.values[u"ai.localHost"_s] = u"http://example.org"_s;
    look();
    EXPECT_EQ(card(), u"Not available|check"_s);
}

TEST_F(SettingsModelTest, DownloadsAModelOnceThatWasAgreedTo) {
    ai.server.haveModels({});
    look();
    OnDeviceCard& onDevice = *model.onDevice();
    onDevice.askForDownload();
    EXPECT_EQ(onDevice.stepName(), u"confirm"_s);
    EXPECT_TRUE(ai.server.requests("/api/pull").isEmpty());
    ai.server.play("/api/pull", ModelServer::Answer{.isSilent = true});
    onDevice.download();
    EXPECT_EQ(card(), u"Downloading|stop"_s);
    EXPECT_EQ(ai.manager->download(), 0);
    onDevice.stop();
    EXPECT_EQ(ai.manager->download(), std::nullopt);
    EXPECT_EQ(card(), u"Needs a model|download"_s);

    ai.server.play("/api/pull", ModelServer::Answer{.body = "{\"error\":\"disk is full\"}\n"});
    onDevice.download();
    ASSERT_TRUE(until([&] { return onDevice.step() != OnDeviceCard::Step::stop; }));
    EXPECT_TRUE(onDevice.text().contains(u"disk is full"_s)) << onDevice.text().toStdString();

    ai.server.play("/api/pull", ModelServer::Answer{.body = "{\"status\":\"success\"}\n"});
    ai.server.haveModels({u"llama3.2:3b"_s});
    onDevice.download();
    EXPECT_TRUE(until([&] { return card() == u"Ready|check"_s; }));
}

} // namespace
} // namespace quillon::testing
