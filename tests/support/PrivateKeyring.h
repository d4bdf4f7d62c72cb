#pragma once

#include "support/ScratchFolder.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

#include <csignal>
#include <sys/prctl.h>

namespace quillon::testing {

/// A message bus of its own, and a real keyring service on it with a home of its own.
class PrivateKeyring {
public:
    enum class Policy { open, refusing };

    /// A refusing bus lets nobody through to the keyring. The address is empty when it can't start.
    explicit PrivateKeyring(Policy policy = Policy::open) {
        const std::string refusal =
            policy == Policy::open ? "" : "<deny send_destination=\"org.freedesktop.secrets\"/>";
        scratch_.write("bus.conf",
                       "<busconfig><type>session</type><listen>unix:dir=" + scratch_.root() +
                           "</listen><policy context=\"default\">"
                           "<allow send_destination=\"*\" eavesdrop=\"true\"/>"
                           "<allow eavesdrop=\"true\"/>" +
                           refusal + "<allow own=\"*\"/></policy></busconfig>");
        dieWithTest(bus_);
        bus_.start(
            QStringLiteral("dbus-daemon"),
            {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
             QStringLiteral("--config-file=") + QString::fromStdString(scratch_.path("bus.conf"))});
        while (!bus_.canReadLine() && bus_.waitForReadyRead(20'000)) {
        }
        address_ = QString::fromUtf8(bus_.readLine().trimmed());
    }
    ~PrivateKeyring() {
        QDBusConnection::disconnectFromBus(name());
        stop();
        stopBus();
    }

    [[nodiscard]] QString address() const { return address_; }
    [[nodiscard]] std::string home() const { return scratch_.root(); }

    /// Once unlocked, the same password unlocks it again; without one it starts locked.
    [[nodiscard]] bool start(const QByteArray& password = {}) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), address_);
        for (const char* folder : {"HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
            environment.insert(QString::fromUtf8(folder), QString::fromStdString(home()));
        daemon_.setProcessEnvironment(environment);
        dieWithTest(daemon_);
        QStringList words{QStringLiteral("--foreground"), QStringLiteral("--components=secrets")};
        if (!password.isEmpty())
            words.append(QStringLiteral("--unlock"));
        daemon_.start(QStringLiteral("gnome-keyring-daemon"), words);
        if (daemon_.write(password) > 0)
            daemon_.waitForBytesWritten();
        daemon_.closeWriteChannel();
        QElapsedTimer timer;
        for (timer.start(); timer.elapsed() < 20'000; QThread::msleep(10))
            if (bus().interface()->isServiceRegistered(QStringLiteral("org.freedesktop.secrets")))
                return true;
        return false;
    }
    void stop() { end(daemon_); }
    void stopBus() { end(bus_); }
    /// It keeps its name and answers nothing.
    void freeze() { ::kill(pid_t(daemon_.processId()), SIGSTOP); }

private:
    [[nodiscard]] QString name() const { return QStringLiteral("private keyring at ") + address_; }
    QDBusConnection bus() { return QDBusConnection::connectToBus(address_, name()); }
    static void dieWithTest(QProcess& process) {
        process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    }
    static void end(QProcess& process) {
        process.kill();
        process.waitForFinished();
    }

    ScratchFolder scratch_;
    QProcess bus_;
    QProcess daemon_;
    QString address_;
};

} // namespace quillon::testing
