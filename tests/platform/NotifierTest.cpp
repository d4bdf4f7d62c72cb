#include "platform/linux/DesktopNotifier.h"
#include "support/PrintQt.h"
#include "support/ScratchFolder.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QProcess>
#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr auto service = "org.freedesktop.Notifications"_L1;
constexpr auto object = "/org/freedesktop/Notifications"_L1;

/// Runs the event loop until it comes true, or for long enough to give up.
template <typename Condition>
bool becomes(Condition condition, qint64 patienceMs = 10'000) {
    QElapsedTimer timer;
    for (timer.start(); !condition(); QCoreApplication::processEvents(QEventLoop::AllEvents, 5))
        if (timer.elapsed() > patienceMs)
            return false;
    return true;
}

std::ptrdiff_t threads() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
}

/// A service that remembers what it was asked to show.
class FakeService : public QDBusVirtualObject {
public:
    QStringList abilities;
    bool answers = true;
    int asked = 0;
    QList<QVariantList> shown;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        asked += message.member() == "GetCapabilities"_L1;
        if (message.member() == "Notify"_L1)
            shown.append(message.arguments());
        if (answers)
            connection.send(message.createReply(message.member() == "Notify"_L1
                                                    ? QVariant(uint(shown.size()))
                                                    : QVariant(abilities)));
        return true;
    }
};

/// A message bus of its own, and whoever is asked for on it.
class NotifierTest : public ::testing::Test {
protected:
    void SetUp() override {
        scratch_.write("bus.conf",
                       "<busconfig><type>session</type><listen>unix:dir=" + scratch_.root() +
                           "</listen><policy context=\"default\">"
                           "<allow send_destination=\"*\" eavesdrop=\"true\"/>"
                           "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>");
        address_ = QString::fromUtf8(
            start(bus_, u"dbus-daemon"_s,
                  {u"--nofork"_s, u"--print-address"_s,
                   u"--config-file="_s + QString::fromStdString(scratch_.path("bus.conf"))}));
        ASSERT_FALSE(address_.isEmpty()) << "no dbus-daemon";
    }
    void TearDown() override {
        QDBusConnection::disconnectFromBus(u"test"_s);
        for (QProcess* process : {&dunst_, &screen_, &bus_}) {
            process->kill();
            process->waitForFinished();
        }
    }

    static void dieWithTest(QProcess& process) {
        process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    }
    /// The first line that the program prints.
    static QByteArray start(QProcess& process, const QString& program, const QStringList& words) {
        dieWithTest(process);
        process.start(program, words);
        while (!process.canReadLine() && process.waitForReadyRead(20'000)) {
        }
        return process.readLine().trimmed();
    }
    void startDunst() {
        if (screen_.state() == QProcess::NotRunning)
            display_ =
                start(screen_, u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-nolisten"_s, u"tcp"_s});
        ASSERT_FALSE(display_.isEmpty()) << "no Xvfb";
        QProcessEnvironment environment;
        environment.insert(u"DISPLAY"_s, u":"_s + QString::fromUtf8(display_));
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address_);
        environment.insert(u"HOME"_s, QString::fromStdString(scratch_.root()));
        dunst_.setProcessEnvironment(environment);
        dieWithTest(dunst_);
        dunst_.start(u"/usr/bin/dunst"_s, {});
        ASSERT_TRUE(becomes([&] { return bus().interface()->isServiceRegistered(service); }))
            << dunst_.readAllStandardError().toStdString();
    }
    QDBusConnection bus() { return QDBusConnection::connectToBus(address_, u"test"_s); }
    QDBusMessage call(const QString& interface, const QString& method, const QVariantList& values) {
        QDBusMessage message = QDBusMessage::createMethodCall(service, object, interface, method);
        message.setArguments(values);
        return bus().call(message);
    }
    qlonglong displayed() {
        return call(u"org.freedesktop.DBus.Properties"_s, u"Get"_s,
                    {u"org.dunstproject.cmd0"_s, u"displayedLength"_s})
            .arguments()
            .value(0)
            .value<QDBusVariant>()
            .variant()
            .toLongLong();
    }
    Environment environment() {
        return [this](const char* name) -> std::optional<std::string> {
            return std::string_view(name) == "DBUS_SESSION_BUS_ADDRESS"
                       ? std::optional(address_.toStdString())
                       : std::nullopt;
        };
    }
    void serve(FakeService& fake) {
        ASSERT_TRUE(bus().registerVirtualObject(object, &fake));
        ASSERT_TRUE(bus().registerService(service));
    }

    int argc_ = 0;
    QCoreApplication application_{argc_, nullptr};
    ScratchFolder scratch_;
    QProcess bus_;
    QProcess screen_;
    QProcess dunst_;
    QString address_;
    QByteArray display_;
};

TEST_F(NotifierTest, OffersUndoOnARealDesktopService) {
    ASSERT_NO_FATAL_FAILURE(startDunst());
    DesktopNotifier notifier(environment());
    int undone = 0;
    notifier.post({u"Quillon tidied Downloads"_s, u"Filed 1 file."_s, [&] { ++undone; }});
    ASSERT_TRUE(becomes([&] { return displayed() == 1; }));
    const auto choose = [&] { call(u"org.dunstproject.cmd0"_s, u"NotificationAction"_s, {0U}); };
    const auto closeAll = [&] {
        call(u"org.dunstproject.cmd0"_s, u"NotificationCloseAll"_s, {});
        return becomes([&] { return displayed() == 0; });
    };
    choose();
    EXPECT_TRUE(becomes([&] { return undone == 1; }));
    ASSERT_TRUE(closeAll());

    notifier.post({u"Quillon tidied Desktop"_s, u"Filed 2 files."_s});
    ASSERT_TRUE(becomes([&] { return displayed() == 1; }));
    ASSERT_TRUE(closeAll());

    dunst_.kill();
    dunst_.waitForFinished();
    ASSERT_NO_FATAL_FAILURE(startDunst());
    notifier.post({u"Again"_s, u"Filed 3 files."_s, [&] { undone += 10; }});
    ASSERT_TRUE(becomes([&] { return displayed() == 1; }));
    choose();
    EXPECT_TRUE(becomes([&] { return undone == 11; }));
}

TEST_F(NotifierTest, KeepsToWhatTheServiceCanDo) {
    const struct {
        QStringList abilities;
        QString body;
        QStringList actions;
    } rows[] = {
        {{u"actions"_s, u"body-markup"_s}, u"a &lt;b&gt; &amp; c"_s, {u"undo"_s, u"Undo"_s}},
        {{u"body"_s}, u"a <b> & c"_s, {}},
    };
    for (const auto& row : rows) {
        FakeService fake;
        fake.abilities = row.abilities;
        serve(fake);
        DesktopNotifier notifier(environment());
        int undone = 0;
        notifier.post({u"T & t"_s, u"a <b> & c"_s, [&] { ++undone; }});
        notifier.post({u"second"_s, {}});
        ASSERT_TRUE(becomes([&] { return fake.shown.size() == 2; }));
        EXPECT_EQ(fake.asked, 1);
        const QVariantList& shown = fake.shown[0];
        EXPECT_EQ(shown[0].toString(), u"Quillon"_s);
        EXPECT_EQ(shown[3].toString(), u"T & t"_s);
        EXPECT_EQ(shown[4].toString(), row.body);
        EXPECT_EQ(shown[5].toStringList(), row.actions);
        EXPECT_EQ(qdbus_cast<QVariantMap>(shown[6]).value(u"desktop-entry"_s).toString(),
                  u"quillon"_s);
        EXPECT_TRUE(fake.shown[1][5].toStringList().isEmpty());

        // Once it is closed, nothing may be undone by its number any more.
        const auto say = [&](const QString& name, const QVariant& value) {
            QDBusMessage signal = QDBusMessage::createSignal(object, service, name);
            signal << 1U << value;
            bus().send(signal);
        };
        say(u"NotificationClosed"_s, 2U);
        say(u"ActionInvoked"_s, u"undo"_s);
        EXPECT_FALSE(becomes([&] { return undone > 0; }, 100));
        bus().unregisterService(service);
        bus().unregisterObject(object);
    }
}

TEST_F(NotifierTest, NeverWaits) {
    FakeService silent;
    silent.answers = false;
    serve(silent);
    const auto threadsBefore = threads();
    const std::string dead = scratch_.path("dead");
    const int listener = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un place = {.sun_family = AF_UNIX, .sun_path = {}};
    dead.copy(place.sun_path, sizeof place.sun_path - 1);
    ASSERT_EQ(::bind(listener, reinterpret_cast<const sockaddr*>(&place), sizeof place), 0);
    ASSERT_EQ(::listen(listener, 5), 0);
    for (const QString& address : {address_, QString(), u"unix:path=/nowhere"_s,
                                   u"unix:path="_s + QString::fromStdString(dead)}) {
        QElapsedTimer timer;
        timer.start();
        DesktopNotifier notifier([&](const char* name) -> std::optional<std::string> {
            return std::string_view(name) == "DBUS_SESSION_BUS_ADDRESS"
                       ? std::optional(address.toStdString())
                       : std::nullopt;
        });
        for (int i = 0; i < 30; ++i)
            notifier.post({u"title"_s, u"body"_s, [] { FAIL(); }});
        becomes([] { return false; }, 20);
        EXPECT_LT(timer.elapsed(), 500) << address.toStdString();
    }
    // The thread that was left behind ends once the bus does.
    ::close(listener);
    EXPECT_TRUE(becomes([&] { return threads() == threadsBefore; }));
}

} // namespace
} // namespace quillon::testing
