#pragma once

#include "platform/FileChooser.h"
#include "platform/FileSystem.h"
#include "platform/LoginItem.h"
#include "platform/Settings.h"
#include "store/AppStore.h"
#include "ui/KeyedRows.h"
#include "ui/Toasts.h"
#include "ui/UserPlaces.h"
#include "ui/dobbin/OnDeviceCard.h"
#include "ui/dobbin/OnboardingRow.h"

#include <functional>

namespace quillon {

/// The first-run introduction. What is chosen in it counts at once and stays; that it has been gone
/// through is only noted at its end.
class OnboardingModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY isRunningChanged)
    Q_PROPERTY(int step READ step NOTIFY changed)
    Q_PROPERTY(int steps READ steps CONSTANT)
    Q_PROPERTY(QString nextText READ nextText NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* folders READ folders CONSTANT)
    Q_PROPERTY(bool notifies READ notifies WRITE setNotifies NOTIFY changed)
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY changed)
    Q_PROPERTY(QString error READ error NOTIFY changed)
    Q_PROPERTY(quillon::OnDeviceCard* onDevice READ onDevice CONSTANT)

public:
    static constexpr int welcomeStep = 0;
    static constexpr int foldersStep = 1;
    static constexpr int quietStep = 2;
    static constexpr int dobbinStep = 3;

    /// All borrowed for the model's life.
    struct Surroundings {
        AppStore& store;
        Settings& settings;
        const FileSystem& fileSystem;
        Background& background;
        FileChooser& fileChooser;
        LoginItem& loginItem;
        Toasts& toasts;
        OnDeviceCard& onDevice;
        std::string home;
        std::function<std::vector<UserPlace>()> places;
    };

    explicit OnboardingModel(Surroundings around, QObject* parent = nullptr);

    [[nodiscard]] bool isRunning() const { return isRunning_; }
    /// Again, from its first page.
    void start();

    [[nodiscard]] int step() const { return step_; }
    [[nodiscard]] static int steps() { return dobbinStep + 1; }
    [[nodiscard]] QString nextText() const;
    /// Does what the page is for; after the last page the introduction is over.
    Q_INVOKABLE void next();
    Q_INVOKABLE void back();
    /// Ends it.
    Q_INVOKABLE void skip();

    [[nodiscard]] QAbstractItemModel* folders() { return &rows_; }
    Q_INVOKABLE void setTicked(const QString& path, bool ticked);
    Q_INVOKABLE void chooseFolder();

    [[nodiscard]] bool notifies() const;
    void setNotifies(bool on);
    [[nodiscard]] bool launchAtLogin() const { return around_.loginItem.isOn(); }
    void setLaunchAtLogin(bool on);
    /// Why the last change was not made.
    [[nodiscard]] QString error() const { return error_; }
    [[nodiscard]] OnDeviceCard* onDevice() { return &around_.onDevice; }

Q_SIGNALS:
    void isRunningChanged();
    void changed();

private:
    struct Look;

    void show(int step);
    void offerFolders();
    void lookAt(std::vector<UserPlace> places, bool isChosen);
    void looked(const Look& look, bool isChosen);
    void watchTicked();
    [[nodiscard]] int tickedCount() const;
    void note(const Expected<void>& result);

    Surroundings around_;
    bool isRunning_ = false;
    int step_ = welcomeStep;
    KeyedRows<OnboardingRow> rows_;
    QString error_;
};

} // namespace quillon
