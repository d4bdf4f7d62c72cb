#pragma once

#include "platform/Notifier.h"
#include "platform/linux/LinuxUserFolders.h"

#include <functional>
#include <memory>
#include <string>

namespace quillon {

/// Notifications through the desktop's notification service. Talks to it on a thread of its own,
/// which is started with the first notification, since connecting waits for the message bus.
class DesktopNotifier final : public Notifier {
public:
    /// The session's message bus is where the variables of the environment say.
    explicit DesktopNotifier(const Environment& environment = processEnvironment);
    /// What is still to be shown, or chosen by the user, is dropped.
    ~DesktopNotifier() override;
    DesktopNotifier(const DesktopNotifier&) = delete;
    DesktopNotifier& operator=(const DesktopNotifier&) = delete;

    void post(const Notification& notification) override;

    /// What clicking a notification does from now on, on the event loop's thread. With the
    /// desktop's token that lets a window come to the front, or empty.
    void onClicked(std::function<void(const std::string& token)> clicked);

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace quillon
