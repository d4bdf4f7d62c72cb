#include "app/MainWindow.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto frameKey = "MainWindow"_L1;
/// Being moved is many small moves.
constexpr int savePauseMs = 500;

QList<QRect> freeScreens() {
    QList<QRect> free;
    for (const QScreen* screen : QGuiApplication::screens())
        free.append(screen->availableGeometry());
    return free;
}

} // namespace

MainWindow::MainWindow(std::unique_ptr<QQuickWindow> window, Settings& settings, WindowHints& hints)
    : window_(std::move(window))
    , settings_(settings)
    , hints_(hints)
    , isX11_(QGuiApplication::platformName() == u"xcb") {
    restoreFrame();
    saving_.setSingleShot(true);
    saving_.setInterval(savePauseMs);
    connect(&saving_, &QTimer::timeout, this, &MainWindow::saveFrame);
    for (const auto changed :
         {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged})
        connect(window_.get(), changed, this, &MainWindow::noteFrame);
    connect(window_.get(), &QWindow::windowStateChanged, this, &MainWindow::noteFrame);
    window_->installEventFilter(this);
}

MainWindow::~MainWindow() = default;

bool MainWindow::isShown() const {
    return window_->isVisible() && window_->visibility() != QWindow::Minimized;
}

void MainWindow::restoreFrame() {
    const QList<QRect> screens = freeScreens();
    const auto saved = readFrame(settings_.value(frameKey).value_or(QString()));
    if (saved) {
        frame_ = *saved;
    } else {
        frame_.rect = QRect(QPoint(), window_->size());
        if (!screens.isEmpty())
            frame_.rect.moveCenter(screens.first().center());
    }
    frame_.rect = reachable(frame_.rect, screens);
    window_->setGeometry(frame_.rect);
}

void MainWindow::noteFrame() {
    const Qt::WindowState state = window_->windowState();
    if (!window_->isVisible() || state == Qt::WindowMinimized)
        return;
    frame_.isMaximized = state == Qt::WindowMaximized;
    if (state == Qt::WindowNoState)
        frame_.rect = window_->geometry();
    saving_.start();
}

void MainWindow::saveFrame() {
    saving_.stop();
    const QString text = frameText(frame_);
    // Without it the window opens where it did before.
    if (settings_.value(frameKey) != text)
        std::ignore = settings_.setValue(frameKey, text);
}

void MainWindow::centre(QWindow& other) const {
    QRect place(QPoint(), other.size());
    place.moveCenter(isShown() ? window_->geometry().center()
                               : window_->screen()->availableGeometry().center());
    other.setPosition(reachable(place, freeScreens()).topLeft());
}

void MainWindow::show(const std::string& activationToken) {
    if (!activationToken.empty())
        qputenv("XDG_ACTIVATION_TOKEN", QByteArray::fromStdString(activationToken));
    window_->setProperty("canBeSeenThrough", !isX11_ || hints_.isComposited());
    if (!window_->isVisible())
        window_->setGeometry(reachable(frame_.rect, freeScreens()));
    if (frame_.isMaximized)
        window_->showMaximized();
    else if (!isShown())
        window_->showNormal();
    window_->raise();
    window_->requestActivate();
    applyHints();
    if (isX11_)
        hints_.bringToFront(window_->winId());
}

void MainWindow::showMinimized() {
    window_->showMinimized();
    applyHints();
}

void MainWindow::close() {
    saveFrame();
    if (policy_.closingHides())
        window_->hide();
    else
        window_->showMinimized();
}

void MainWindow::setPolicy(const DockPolicy& policy) {
    policy_ = policy;
    applyHints();
}

void MainWindow::applyHints() {
    if (isX11_ && window_->isVisible())
        hints_.setSkipsTaskbar(window_->winId(), policy_.skipsTaskbar());
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Close) {
        event->ignore();
        close();
        return true;
    }
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Quit)) {
        Q_EMIT quitRequested();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quillon
