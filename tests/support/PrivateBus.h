#pragma once

#include "platform/linux/LinuxUserFolders.h"
#include "support/ScratchFolder.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>

namespace quillon::testing {

/// A message bus of its own.
class PrivateBus {
public:
    PrivateBus() {
        scratch_.write("bus.conf",
                       "<busconfig><type>session</type><listen>unix:dir=" + scratch_.root() +
                           "</listen><policy context=\"default\">"
                           "<allow send_destination=\"*\" eavesdrop=\"true\"/>"
                           "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>");
        process_.start(
            QStringLiteral("dbus-daemon"),
            {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
             QStringLiteral("--config-file=") + QString::fromStdString(scratch_.path("bus.conf"))});
        while (!process_.canReadLine() && process_.waitForReadyRead(20'000)) {
        }
        address_ = QString::fromUtf8(process_.readLine().trimmed());
        EXPECT_FALSE(address_.isEmpty()) << "no dbus-daemon";
    }
    ~PrivateBus() {
        QDBusConnection::disconnectFromBus(name());
        process_.kill();
        process_.waitForFinished();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    /// The test's own connection.
    [[nodiscard]] QDBusConnection connection() const {
        return QDBusConnection::connectToBus(address_, name());
    }
    [[nodiscard]] Environment environment() const {
        return [address = address_.toStdString()](const char* variable) {
            return std::string_view(variable) == "DBUS_SESSION_BUS_ADDRESS" ? std::optional(address)
                                                                            : std::nullopt;
        };
    }

private:
    static QString name() { return QStringLiteral("private-bus-test"); }

    ScratchFolder scratch_;
    QProcess process_;
    QString address_;
};

} // namespace quillon::testing
