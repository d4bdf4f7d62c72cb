#pragma once

#include "assistant/ModelAccess.h"
#include "assistant/backends/ClaudeClient.h"
#include "assistant/backends/OnDeviceModel.h"
#include "platform/Clock.h"
#include "platform/Keychain.h"
#include "platform/Settings.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace quillon {

/// How long the backends are waited for.
struct AIPatience {
    ClaudeClient::Patience claude = {};
    OnDeviceModel::Patience local = {};
};

/// The assistant's settings, its key, and the way to the backend that the user has chosen: Claude
/// when that is switched on and there is a key, otherwise the model on this machine. Neither stands
/// in for the other when it fails.
///
/// On one event-loop thread. Settings are read when they are needed, so that a change of their file
/// counts at once; the signals tell of changes that were made here. The keychain isn't touched and
/// no connection is made before something is asked for.
class AIManager final : public QObject, public ModelAccess {
    Q_OBJECT
    Q_PROPERTY(bool suggestRules READ suggestRules WRITE setSuggestRules NOTIFY settingsChanged)
    Q_PROPERTY(bool readContents READ readContents WRITE setReadContents NOTIFY settingsChanged)
    Q_PROPERTY(bool useClaude READ useClaude WRITE setUseClaude NOTIFY settingsChanged)
    Q_PROPERTY(quillon::ClaudeModel claudeModel READ claudeModel WRITE setClaudeModel NOTIFY
                   settingsChanged)
    Q_PROPERTY(QString keySuffix READ keySuffix NOTIFY keySuffixChanged)
    Q_PROPERTY(int requestsThisMonth READ requestsThisMonth NOTIFY requestsThisMonthChanged)
    Q_PROPERTY(quillon::OnDeviceStatus status READ status NOTIFY statusChanged)

public:
    /// Borrows the first three. `forgetAnswers` is called after another key was saved: what has
    /// been answered so far came from another model. `where` is where failures are read.
    AIManager(Settings& settings, Keychain& keychain, const Clock& clock,
              std::function<void()> forgetAnswers, AIPatience patience = {},
              SaidIn where = SaidIn::terminal, QObject* parent = nullptr);
    ~AIManager() override;

    /// Loads the key first where Claude is to be asked and it isn't in memory. Where it can't be
    /// read and there is no model on this machine either, the failure is that of the keychain.
    [[nodiscard]] QCoro::Task<Expected<QString>> send(AIRequest request) override;

    /// Whether send() would ask Claude now, which it finds out in the same way.
    [[nodiscard]] QCoro::Task<bool> asksClaude();

    /// Why send() would fail now, in a sentence, as far as that is known beforehand; empty when
    /// something can be asked.
    [[nodiscard]] QCoro::Task<QString> whyUnavailable();

    [[nodiscard]] bool suggestRules() const;
    [[nodiscard]] bool readContents() const override;
    [[nodiscard]] bool useClaude() const;
    [[nodiscard]] ClaudeModel claudeModel() const;
    /// Each fails when the settings can't be saved, and the old value stays.
    Expected<void> setSuggestRules(bool on);
    Expected<void> setReadContents(bool on);
    Expected<void> setUseClaude(bool on);
    Expected<void> setClaudeModel(ClaudeModel model);

    /// The last four characters of the key in memory, to tell keys apart by; empty without one.
    [[nodiscard]] QString keySuffix() const { return apiKey_.right(4); }
    /// Takes the key from the keychain into memory; fails like Keychain::read. One that was there
    /// before stays unless the keychain has none.
    [[nodiscard]] QCoro::Task<Expected<void>> loadKey();
    /// Checks a key and keeps it. When that fails, everything stays as it was.
    [[nodiscard]] QCoro::Task<Expected<void>> saveKey(QString typed);
    /// Succeeds when there is none, too. When it fails, the key is still there.
    [[nodiscard]] QCoro::Task<Expected<void>> removeKey();

    /// Requests to Claude in the current month of the local calendar.
    [[nodiscard]] int requestsThisMonth() const;
    void countRequest();

    /// As it was at the last look; until then as if there were no local server.
    [[nodiscard]] OnDeviceStatus status() const { return status_; }
    [[nodiscard]] QCoro::Task<void> refreshStatus();
    /// How far this process has come with downloading a local model; nothing once that has ended.
    void noteDownload(std::optional<int> percent) { download_ = percent; }
    [[nodiscard]] std::optional<int> download() const { return download_; }

Q_SIGNALS:
    void settingsChanged();
    void keySuffixChanged();
    void requestsThisMonthChanged();
    void statusChanged();

private:
    /// Takes the key into memory where Claude is to be asked; why that failed, unless there is
    /// none.
    [[nodiscard]] QCoro::Task<std::optional<Error>> ensureKey();
    [[nodiscard]] QCoro::Task<Expected<QString>> askClaude(AIRequest request);
    [[nodiscard]] QCoro::Task<Expected<QString>> askOnDevice(AIRequest request);
    [[nodiscard]] QCoro::Task<LocalModelState> look();
    [[nodiscard]] ClaudeClient claude(const QString& key);
    [[nodiscard]] OnDeviceModel onDevice();
    [[nodiscard]] QString text(QStringView key) const;
    Expected<void> set(QStringView key, const QString& value);
    void setKey(const QString& key);

    Settings& settings_;
    Keychain& keychain_;
    const Clock& clock_;
    std::function<void()> forgetAnswers_;
    AIPatience patience_;
    SaidIn where_;
    QString apiKey_;
    OnDeviceStatus status_ = statusOf(LocalModelState{}, where_);
    std::optional<int> download_;

    std::shared_ptr<const void> life_; ///< those who wait look whether it is still there
    std::unique_ptr<HttpClient> http_; ///< made with the first request
};

} // namespace quillon
