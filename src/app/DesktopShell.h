#pragma once

#include "app/MainWindow.h"
#include "app/Popover.h"
#include "app/TrayPresenter.h"
#include "service/DesktopServices.h"
#include "service/ObservedSettings.h"
#include "ui/AppModel.h"

#include <QQmlEngine>

#include <string>

namespace quillon {

/// The windows and the tray item of the application, and how the user gets from one to the other.
class DesktopShell final : public QObject {
    Q_OBJECT

public:
    /// All borrowed.
    struct Surroundings {
        AppStore& store;
        AppModel& model;
        QQmlEngine& engine;
        DesktopLook& look;
        DesktopServices& desktop;
        ObservedSettings& settings;
        QString desktopNames; ///< see panelTextColor()
    };

    explicit DesktopShell(const Surroundings& around);
    ~DesktopShell() override;

    /// To be called once: the tray item, and the window where the policy has it.
    void start();
    void showMainWindow(const std::string& activationToken = {});
    /// Nothing of Quillon is to be seen any more.
    void hideAll();
    [[nodiscard]] MainWindow& mainWindow() { return main_; }

Q_SIGNALS:
    void quitRequested();

private:
    [[nodiscard]] DockPolicy policy() const;
    void applyPolicy();
    void connectModel();
    void showSettings();
    void trayPlaceChanged();
    void stayReachable();

    Surroundings around_;
    MainWindow main_;
    Popover popover_;
    TrayPresenter tray_;
    std::unique_ptr<QQuickWindow> settingsWindow_; ///< made when it is first asked for
    bool waitsForTray_ = false;                    ///< whether to show a window at launch
};

} // namespace quillon
