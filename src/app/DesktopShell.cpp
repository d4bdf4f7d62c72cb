#include "app/DesktopShell.h"

#include "app/QmlScene.h"
#include "store/SettingsTable.h"

#include <QGuiApplication>

#include <chrono>

namespace quillon {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QStringView dockSetting = u"showDockIcon";
constexpr QStringView onboardedSetting = u"hasOnboarded";

/// How long a desktop that starts up at the same time may take to have a tray.
constexpr std::chrono::milliseconds trayPatience = 5s;
/// A panel that is started again is soon back.
constexpr std::chrono::milliseconds panelPause = 4s;

} // namespace

DesktopShell::DesktopShell(const Surroundings& around)
    : around_(around)
    , main_(makeWindow(around.engine, u"MainWindow"_s), around.settings,
            around.desktop.windowHints())
    , popover_([this] { return makeWindow(around_.engine, u"PopoverWindow"_s); },
               around.desktop.windowHints())
    , tray_({.store = around.store,
             .item = around.desktop.trayItem(),
             .desktop = around.look,
             .desktopNames = around.desktopNames}) {}

DesktopShell::~DesktopShell() = default;

DockPolicy DesktopShell::policy() const {
    return {.showsDockIcon = settingTruth(around_.settings, dockSetting),
            .hasOnboarded = settingTruth(around_.settings, onboardedSetting),
            .tray = around_.desktop.trayItem().place()};
}

void DesktopShell::start() {
    connectModel();
    const DockPolicy atLaunch = policy();
    main_.setPolicy(atLaunch);
    if (atLaunch.showsWindowAtLaunch())
        showMainWindow();
    else
        waitsForTray_ = true;
    tray_.start();
    QTimer::singleShot(trayPatience, this, [this] {
        if (std::exchange(waitsForTray_, false) &&
            around_.desktop.trayItem().place() != TrayItem::Place::shown)
            showMainWindow();
    });
}

void DesktopShell::connectModel() {
    connect(&tray_, &TrayPresenter::activated, &popover_, &Popover::toggle);
    connect(&tray_, &TrayPresenter::placeChanged, this, &DesktopShell::trayPlaceChanged);
    connect(&tray_, &TrayPresenter::openRequested, this, [this] { showMainWindow(); });
    connect(&tray_, &TrayPresenter::quitRequested, this, &DesktopShell::quitRequested);
    connect(&main_, &MainWindow::quitRequested, this, &DesktopShell::quitRequested);
    connect(&around_.engine, &QQmlEngine::quit, this, &DesktopShell::quitRequested);

    PopoverModel* const popover = around_.model.popover();
    connect(popover, &PopoverModel::closeRequested, &popover_, &Popover::hide);
    connect(popover, &PopoverModel::openMainWindowRequested, this, [this] { showMainWindow(); });
    connect(popover, &PopoverModel::settingsRequested, this,
            [this] { around_.model.settings()->open(); });
    connect(around_.model.settings(), &SettingsModel::openRequested, this,
            &DesktopShell::showSettings);
    OnboardingModel* const onboarding = around_.model.onboarding();
    connect(onboarding, &OnboardingModel::isRunningChanged, this, [this, onboarding] {
        if (onboarding->isRunning())
            showMainWindow();
    });
    connect(&around_.settings, &ObservedSettings::changed, this, [this](const QString& key) {
        if (key == dockSetting)
            applyPolicy();
    });
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive)
                    around_.store.refreshAccess();
            });
}

void DesktopShell::showMainWindow(const std::string& activationToken) {
    waitsForTray_ = false;
    popover_.hide();
    main_.show(activationToken);
}

/// The window doesn't get lost behind others when its taskbar entry comes or goes.
void DesktopShell::applyPolicy() {
    main_.setPolicy(policy());
    if (policy().showsDockIcon || main_.isShown())
        showMainWindow();
    // Nor does the one in which that was switched.
    if (!settingsWindow_ || !settingsWindow_->isVisible())
        return;
    settingsWindow_->raise();
    settingsWindow_->requestActivate();
    if (QGuiApplication::platformName() == u"xcb")
        around_.desktop.windowHints().bringToFront(settingsWindow_->winId());
}

/// It opens itself once it is there.
void DesktopShell::showSettings() {
    popover_.hide();
    if (settingsWindow_)
        return;
    settingsWindow_ = makeWindow(around_.engine, u"SettingsWindow"_s);
    settingsWindow_->setProperty("isSquare", QGuiApplication::platformName() == u"xcb" &&
                                                 !around_.desktop.windowHints().isComposited());
    main_.centre(*settingsWindow_);
    settingsWindow_->show();
    settingsWindow_->requestActivate();
}

void DesktopShell::trayPlaceChanged() {
    main_.setPolicy(policy());
    if (around_.desktop.trayItem().place() == TrayItem::Place::shown)
        waitsForTray_ = false;
    else if (waitsForTray_)
        showMainWindow();
    else
        QTimer::singleShot(panelPause, this, &DesktopShell::stayReachable);
}

void DesktopShell::stayReachable() {
    if (around_.desktop.trayItem().place() != TrayItem::Place::shown && !main_.window().isVisible())
        main_.showMinimized();
}

void DesktopShell::hideAll() {
    main_.saveFrame();
    main_.window().hide();
    popover_.hide();
    if (settingsWindow_)
        settingsWindow_->hide();
}

} // namespace quillon
