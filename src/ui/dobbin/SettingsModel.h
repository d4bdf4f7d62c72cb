#pragma once

#include "platform/Clock.h"
#include "platform/FileChooser.h"
#include "platform/FileManager.h"
#include "platform/LoginItem.h"
#include "platform/Settings.h"
#include "platform/Storage.h"
#include "platform/Timers.h"
#include "store/AppStore.h"
#include "ui/dobbin/ClaudeSettings.h"
#include "ui/dobbin/OnDeviceCard.h"

#include <functional>
#include <memory>

namespace quillon {

/// The settings as their window shows them. A change of the settings' file shows within a second
/// while the window is open.
class SettingsModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isShown READ isShown WRITE setShown NOTIFY isShownChanged)
    Q_PROPERTY(QString page READ page WRITE setPage NOTIFY pageChanged)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(bool showDockIcon READ showDockIcon WRITE setShowDockIcon NOTIFY changed)
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY changed)
    Q_PROPERTY(bool notifies READ notifies WRITE setNotifies NOTIFY changed)
    Q_PROPERTY(bool isPaused READ isPaused WRITE setPaused NOTIFY changed)
    Q_PROPERTY(QString error READ error NOTIFY changed)
    Q_PROPERTY(QString exported READ exported NOTIFY changed)
    Q_PROPERTY(bool isExporting READ isExporting NOTIFY changed)
    Q_PROPERTY(quillon::OnDeviceCard* onDevice READ onDevice CONSTANT)
    Q_PROPERTY(quillon::ClaudeSettings* claude READ claude CONSTANT)

public:
    /// All borrowed for the model's life.
    struct Surroundings {
        AppStore& store;
        Settings& settings;
        const Clock& clock;
        Storage& storage;
        Background& background;
        Timers& timers;
        FileChooser& fileChooser;
        FileManager& fileManager;
        LoginItem& loginItem;
        std::function<AIManager&()> assistant;
        std::function<void()> introduce; ///< shows the introduction again
    };

    explicit SettingsModel(Surroundings around, QObject* parent = nullptr);
    ~SettingsModel() override;

    /// Has the window shown, at "general", "dobbin" or where it was.
    Q_INVOKABLE void open(const QString& page = {});

    [[nodiscard]] bool isShown() const { return isShown_; }
    void setShown(bool shown);
    [[nodiscard]] QString page() const { return page_; }
    void setPage(const QString& page);
    [[nodiscard]] static QString version();

    [[nodiscard]] bool showDockIcon() const;
    void setShowDockIcon(bool on);
    [[nodiscard]] bool launchAtLogin() const { return around_.loginItem.isOn(); }
    void setLaunchAtLogin(bool on);
    [[nodiscard]] bool notifies() const;
    void setNotifies(bool on);
    [[nodiscard]] bool isPaused() const { return around_.store.isPaused(); }
    void setPaused(bool paused);
    /// Why the last change was not made.
    [[nodiscard]] QString error() const { return error_; }

    Q_INVOKABLE void exportDiagnostics();
    [[nodiscard]] bool isExporting() const { return isExporting_; }
    /// Where the report is; empty before there is one.
    [[nodiscard]] QString exported() const { return exported_; }
    Q_INVOKABLE void revealExported();
    Q_INVOKABLE void writeToSupport();
    Q_INVOKABLE void openWebsite();
    /// Where a key for Claude is to be had.
    Q_INVOKABLE void openKeyPage();
    Q_INVOKABLE void showIntroduction();

    [[nodiscard]] OnDeviceCard* onDevice() { return &onDevice_; }
    [[nodiscard]] ClaudeSettings* claude() { return &claude_; }

Q_SIGNALS:
    void openRequested();
    void closeRequested();
    void isShownChanged();
    void pageChanged();
    void changed();

private:
    void set(QStringView key, bool on);
    void note(const Expected<void>& result);
    void refresh();
    void lookAtPage();
    [[nodiscard]] QStringList everything() const;
    void write(const std::string& path);

    Surroundings around_;
    OnDeviceCard onDevice_;
    ClaudeSettings claude_;
    bool isShown_ = false;
    QString page_ = QStringLiteral("general");
    QStringList shown_; ///< all values as they were told last
    std::unique_ptr<Timer> looking_;
    QString error_;
    QString exported_;
    std::string exportedPath_;
    bool isExporting_ = false;
};

} // namespace quillon
