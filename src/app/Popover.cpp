#include "app/Popover.h"

#include "app/PopoverPlace.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The click on the tray item that makes the popover lose the keyboard is the one that is to close
/// it.
constexpr qint64 sameClickMs = 400;

struct Spot {
    QPoint point;
    QRect available;
};

/// In device-independent pixels.
Spot spotOf(QPoint point) {
    if (!point.isNull())
        for (const QScreen* screen : QGuiApplication::screens()) {
            const QRect area = screen->geometry();
            const qreal ratio = screen->devicePixelRatio();
            const QPoint inside = point - area.topLeft();
            const QSize native = area.size() * ratio;
            if (QRect(QPoint(), native).contains(inside))
                return {.point = area.topLeft() + inside / ratio,
                        .available = screen->availableGeometry()};
        }
    const QPoint pointer = QCursor::pos();
    const QScreen* screen = QGuiApplication::screenAt(pointer);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return {.point = pointer, .available = screen->availableGeometry()};
}

} // namespace

Popover::Popover(Make make, WindowHints& hints) : make_(std::move(make)), hints_(hints) {}

Popover::~Popover() = default;

void Popover::toggle(QPoint point) {
    if (window_ && window_->isVisible())
        return hide();
    if (sinceLeft_.isValid() && sinceLeft_.elapsed() < sameClickMs)
        return sinceLeft_.invalidate();
    show(point);
}

void Popover::show(QPoint point) {
    if (!window_) {
        window_ = make_();
        window_->installEventFilter(this);
        connect(window_.get(), &QWindow::activeChanged, this, [this] {
            if (!window_->isActive())
                leave();
        });
    }
    const bool isX11 = QGuiApplication::platformName() == u"xcb";
    if (isX11 && !hints_.isComposited())
        window_->setProperty("margin", 0);
    const int margin = window_->property("margin").toInt();
    const Spot spot = spotOf(point);
    const QSize surface = window_->size() - QSize(2 * margin, 2 * margin);
    const QRect place = placeBeside(spot.point, surface, spot.available);
    window_->setPosition(place.topLeft() - QPoint(margin, margin));
    window_->show();
    window_->raise();
    window_->requestActivate();
    if (isX11) {
        hints_.setSkipsTaskbar(window_->winId(), true);
        hints_.bringToFront(window_->winId());
    }
}

void Popover::hide() {
    if (window_)
        window_->hide();
}

void Popover::leave() {
    if (!window_->isVisible())
        return;
    sinceLeft_.start();
    hide();
}

bool Popover::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Close) {
        event->ignore();
        hide();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quillon
