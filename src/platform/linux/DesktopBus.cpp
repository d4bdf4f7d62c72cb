#include "platform/linux/DesktopBus.h"

#include "platform/linux/SessionBus.h"

#include <QUuid>

#include <thread>

namespace quillon {

DesktopBus::DesktopBus(const Environment& environment)
    : address_(sessionBusAddress(environment))
    , name_(QStringLiteral("quillon-desktop-") + QUuid::createUuid().toString()) {}

DesktopBus::~DesktopBus() {
    mailbox_->close();
    connection_.reset();
    QDBusConnection::disconnectFromBus(name_);
}

void DesktopBus::whenConnected(Use use) {
    if (isKnown_)
        return use(connection_);
    waiting_.push_back(std::move(use));
    if (!std::exchange(isStarted_, true))
        start();
}

void DesktopBus::start() {
    if (address_.isEmpty())
        return mailbox_->post([this] { connected({}); });
    std::thread([this, box = mailbox_, address = address_, name = name_] {
        auto bus = QDBusConnection::connectToBus(address, name);
        const bool isConnected = bus.isConnected();
        box->post([this, bus, isConnected] {
            connected(isConnected ? std::optional(bus) : std::nullopt);
        });
    }).detach();
}

void DesktopBus::connected(std::optional<QDBusConnection> connection) {
    connection_ = std::move(connection);
    isKnown_ = true;
    for (const Use& use : std::exchange(waiting_, {}))
        use(connection_);
}

} // namespace quillon
