#pragma once

#include "platform/WindowHints.h"

#include <QElapsedTimer>
#include <QQuickWindow>

#include <functional>
#include <memory>

namespace quillon {

/// The popover of the tray item: made when it is first asked for, and gone when the user turns to
/// something else.
class Popover final : public QObject {
    Q_OBJECT

public:
    using Make = std::function<std::unique_ptr<QQuickWindow>()>;

    /// Borrows the hints.
    Popover(Make make, WindowHints& hints);
    ~Popover() override;

    /// The point is where the tray item is, in the screen's own pixels; where (0, 0) is given, for
    /// want of a better one, that is where the pointer is.
    void toggle(QPoint point);
    void hide();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show(QPoint point);
    void leave();

    Make make_;
    WindowHints& hints_;
    std::unique_ptr<QQuickWindow> window_;
    QElapsedTimer sinceLeft_;
};

} // namespace quillon
