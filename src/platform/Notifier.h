#pragma once

#include <QString>

#include <functional>

namespace quillon {

struct Notification {
    QString title;
    QString body;
    /// Called on the event loop's thread when the user chooses "Undo". Empty: no such action.
    std::function<void()> undo = {};
    /// Called there when the user opens the notification itself, before whoever is told of clicks.
    std::function<void()> show = {};
};

/// The desktop's notifications. On the event loop's thread; never blocks.
class Notifier {
public:
    virtual ~Notifier() = default;

    /// Shows it at once. Where nobody shows notifications, nothing happens.
    virtual void post(const Notification& notification) = 0;
};

} // namespace quillon
