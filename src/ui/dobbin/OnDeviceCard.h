#pragma once

#include "assistant/backends/AIManager.h"
#include "assistant/backends/ModelDownload.h"
#include "platform/Settings.h"

#include <QCoroTask>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace quillon {

/// How things are with the model on this computer, and its download.
class OnDeviceCard final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString badge READ badge NOTIFY changed)
    Q_PROPERTY(QString badgeKind READ badgeKind NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(QString step READ stepName NOTIFY changed)
    Q_PROPERTY(bool isChecking READ isChecking NOTIFY changed)
    Q_PROPERTY(qreal progress READ progress NOTIFY changed)

public:
    /// What can be done now.
    enum class Step : std::uint8_t { check, download, confirm, stop };

    /// Borrows both for its life; the manager is made when something is looked at.
    OnDeviceCard(const Settings& settings, std::function<AIManager&()> assistant,
                 QObject* parent = nullptr);
    ~OnDeviceCard() override;

    Q_INVOKABLE void check();
    /// Asks first, which takes it to the step `confirm`.
    Q_INVOKABLE void askForDownload();
    Q_INVOKABLE void download();
    Q_INVOKABLE void dropDownload();
    /// The next one goes on from there.
    Q_INVOKABLE void stop();

    [[nodiscard]] QString badge() const;
    /// Of the control that shows it.
    [[nodiscard]] QString badgeKind() const;
    [[nodiscard]] QString text() const;
    [[nodiscard]] Step step() const;
    [[nodiscard]] QString stepName() const;
    [[nodiscard]] bool isChecking() const { return isChecking_; }
    [[nodiscard]] bool isDownloading() const { return download_ != nullptr; }
    [[nodiscard]] qreal progress() const;
    /// What to call the model in a sentence.
    [[nodiscard]] QString name() const;

Q_SIGNALS:
    void changed();

private:
    QCoro::Task<> look();
    void downloadEnded(const Expected<void>& result);
    [[nodiscard]] QString setting(QStringView key) const;
    [[nodiscard]] QString wantedModel() const;
    [[nodiscard]] bool isMissing() const;

    const Settings& settings_;
    std::function<AIManager&()> assistant_;
    std::optional<LocalModelState> state_; ///< nothing before the first look
    bool isChecking_ = false;
    bool isAsking_ = false;
    std::unique_ptr<ModelDownload> download_;
    PullProgress progress_;
    QString failure_; ///< of the last download
};

} // namespace quillon
