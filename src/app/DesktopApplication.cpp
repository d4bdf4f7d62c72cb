#include "app/DesktopApplication.h"

#include "app/DesktopShell.h"
#include "app/DialogFileChooser.h"
#include "app/FirstInstance.h"
#include "app/QmlScene.h"
#include "cli/CommandLine.h"
#include "service/InstanceRequest.h"
#include "service/StopNotices.h"
#include "service/ThisProcess.h"
#include "ui/Translations.h"
#include "ui/icons/IconPainter.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QIcon>
#include <QMessageBox>
#include <QPointer>

#include <cstdio>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

void nameApplication() {
    QCoreApplication::setOrganizationName(u"Quillon"_s);
    QCoreApplication::setApplicationName(u"Quillon"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLON_VERSION));
    QGuiApplication::setApplicationDisplayName(u"Quillon"_s);
    QGuiApplication::setDesktopFileName(u"quillon"_s);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QIcon::setFallbackThemeName(u"breeze"_s);
    QGuiApplication::setWindowIcon(QIcon::fromTheme(u"quillon"_s));
}

/// Nothing that Quillon draws needs a graphics processor, whose driver alone would take more memory
/// than all of it.
void drawInSoftware() {
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QQuickWindow::setDefaultAlphaBuffer(true);
}

std::string activationToken() {
    for (const char* name : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"})
        if (const auto token = environmentVariable(name))
            return *token;
    return {};
}

QString portalParent() {
    const QWindow* window = QGuiApplication::focusWindow();
    return window && QGuiApplication::platformName() == u"xcb"
               ? u"x11:"_s + QString::number(window->winId(), 16)
               : QString();
}

/// Until the user has read it, or the process is asked to end.
int showSentence(const QString& sentence, Services& services) {
    QMessageBox box(QMessageBox::Warning, u"Quillon"_s, sentence, QMessageBox::Close);
    box.setTextFormat(Qt::PlainText); // it may name a path
    services.setStopHandler([&box] { box.reject(); });
    box.exec();
    services.setStopHandler({});
    return 1;
}

/// Says how long it was from the process's start to the first picture of a window.
void measureLaunch(QQuickWindow& window, const QElapsedTimer& sinceStart) {
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, &window,
        [sinceStart] { std::fprintf(stderr, "first frame after %lld ms\n", sinceStart.elapsed()); },
        Qt::SingleShotConnection);
}

/// Everything that the application is made of once it is the instance.
class Application {
public:
    Application(Services& services, std::unique_ptr<Instance> instance)
        : services_(services)
        , instance_(std::move(instance))
        , desktop_({.services = services,
                    .fallbackChooser = dialogs_,
                    .parentWindow = portalParent,
                    .program = QCoreApplication::applicationFilePath().toStdString()})
        , model_({.store = instance_->store(),
                  .services = services,
                  .fileChooser = desktop_.fileChooser(),
                  .fileManager = desktop_.fileManager(),
                  .loginItem = desktop_.loginItem()})
        , engine_(makeQmlEngine(model_, &desktop_.appearance()))
        , shell_({.store = instance_->store(),
                  .model = model_,
                  .engine = *engine_,
                  .look = desktopLook(*engine_),
                  .desktop = desktop_,
                  .settings = services.settings(),
                  .desktopNames = qEnvironmentVariable("XDG_CURRENT_DESKTOP")}) {
        QObject::connect(&shell_, &DesktopShell::quitRequested, &shell_, [this] { askToQuit(); });
        services_.onNotificationClicked(
            [this](const std::string& token) { shell_.showMainWindow(token); });
        services_.setStopHandler([this] { quit(); });
    }
    ~Application() { services_.setStopHandler({}); }
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    [[nodiscard]] DesktopShell& shell() { return shell_; }

private:
    /// A rule that was changed and not saved is shown first, and its editor asks.
    void askToQuit() {
        model_.sheets()->leave([this] { quit(); });
        if (model_.editor()->question()->isOpen())
            shell_.showMainWindow();
    }

    /// A second time, what is under way ends early.
    void quit() {
        shell_.hideAll();
        instance_->stop(
            [this] { QCoreApplication::exit(instance_->store().lastSaveError() ? 1 : 0); });
    }

    Services& services_;
    std::unique_ptr<Instance> instance_;
    DialogFileChooser dialogs_;
    DesktopServices desktop_;
    AppModel model_;
    std::unique_ptr<QQmlEngine> engine_;
    DesktopShell shell_;
};

int run(Services& services, const QElapsedTimer& sinceStart) {
    const StopNotices stops([&services] { services.stopRequested(); });
    QPointer<DesktopShell> shell;
    auto became = becomeInstance(
        services,
        [&](const std::vector<std::string>& words, const Console& console) {
            const auto request = instanceRequest(words);
            if (!request || request->kind != InstanceRequest::Kind::show)
                return carryOutCommandLine(words, console, services);
            services.onLoop([&] {
                if (shell)
                    shell->showMainWindow(request->argument);
            });
            return ExitCode::done;
        },
        activationToken());
    if (std::holds_alternative<ShownElsewhere>(became))
        return 0;
    if (const auto* error = std::get_if<Error>(&became))
        return showSentence(error->message, services);
    Application application(services, std::get<std::unique_ptr<Instance>>(std::move(became)));
    shell = &application.shell();
    if (environmentVariable("QUILLON_MEASURE"))
        measureLaunch(shell->mainWindow().window(), sinceStart);
    shell->start();
    return QApplication::exec();
}

} // namespace

int runDesktopApplication(int argc, char** argv) {
    QElapsedTimer sinceStart;
    sinceStart.start();
    std::ignore = openTerminal();
    becomeLongLived();
    drawInSoftware();
    QApplication application(argc, argv);
    nameApplication();
    installTranslations(application);
    Services services(currentUserFolders(), SaidIn::window);
    const int code = run(services, sinceStart);
    services.close();
    return code;
}

} // namespace quillon
