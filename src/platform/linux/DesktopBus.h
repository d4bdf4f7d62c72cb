#pragma once

#include "platform/linux/LinuxUserFolders.h"
#include "platform/linux/Mailbox.h"

#include <QDBusConnection>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// The session's message bus, for what the desktop application asks of it. Connecting waits for the
/// bus and so happens on a thread that is left behind when the bus never answers. On the event
/// loop's thread.
class DesktopBus {
public:
    explicit DesktopBus(const Environment& environment = processEnvironment);
    ~DesktopBus();
    DesktopBus(const DesktopBus&) = delete;
    DesktopBus& operator=(const DesktopBus&) = delete;

    /// Calls `use` once the connection is there, at once when it is already, and with nothing when
    /// there is no bus.
    using Use = std::function<void(std::optional<QDBusConnection>)>;
    void whenConnected(Use use);

private:
    void start();
    void connected(std::optional<QDBusConnection> connection);

    QString address_;
    QString name_; ///< of the connection
    QObject receiver_;
    std::shared_ptr<Mailbox> mailbox_ = std::make_shared<Mailbox>(&receiver_);
    bool isStarted_ = false;
    bool isKnown_ = false; ///< whether there is a bus
    std::optional<QDBusConnection> connection_;
    std::vector<Use> waiting_;
};

} // namespace quillon
