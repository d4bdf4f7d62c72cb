#include "platform/linux/AutostartEntry.h"
#include "platform/linux/DesktopFileManager.h"
#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/LinuxStorage.h"
#include "platform/linux/PortalAppearance.h"
#include "platform/linux/PortalFileChooser.h"
#include "platform/linux/StatusNotifierTray.h"
#include "support/FakeDesktop.h"
#include "support/PrintQt.h"
#include "support/PrivateBus.h"

#include <QCoreApplication>
#include <QDBusPendingCall>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QPoint>
#include <gmock/gmock.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

template <typename Condition>
bool becomes(Condition condition) {
    QElapsedTimer timer;
    for (timer.start(); !condition(); QCoreApplication::processEvents(QEventLoop::AllEvents, 5))
        if (timer.elapsed() > 10'000)
            return false;
    return true;
}

/// A service that notes what it is asked, and answers what the test says.
class FakeService : public QDBusVirtualObject {
public:
    using Answer = std::function<QVariant(const QDBusMessage&)>;
    explicit FakeService(Answer answer) : answer_(std::move(answer)) {}

    QStringList asked;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        asked.append(message.member());
        const QVariant value = answer_(message);
        return connection.send(value.isValid() ? message.createReply(value)
                                               : message.createReply());
    }

private:
    Answer answer_;
};

class DesktopTest : public ::testing::Test {
protected:
    void serve(const QString& name, const QString& path, FakeService& service) {
        ASSERT_TRUE(bus_.connection().registerVirtualObject(path, &service));
        ASSERT_TRUE(bus_.connection().registerService(name));
    }
    /// Sends it to the tray item and waits for the answer.
    QVariant ask(const QString& to, const QString& path, const QString& interface,
                 const QString& method, const QVariantList& values) {
        QDBusMessage message = QDBusMessage::createMethodCall(to, path, interface, method);
        message.setArguments(values);
        const QDBusPendingCall call = bus_.connection().asyncCall(message);
        EXPECT_TRUE(becomes([&] { return call.isFinished(); }));
        EXPECT_FALSE(call.isError()) << call.error().message().toStdString();
        return call.reply().arguments().value(0);
    }

    int argc_ = 0;
    QCoreApplication application_{argc_, nullptr};
    PrivateBus bus_;
    DesktopBus desktop_{bus_.environment()};
};

TEST_F(DesktopTest, theTrayItemFollowsAStatusAreaThatComesAndGoes) {
    const QString watcher = u"org.kde.StatusNotifierWatcher"_s;
    QStringList registered;
    FakeService area([&](const QDBusMessage& message) -> QVariant {
        if (message.member() == u"Get")
            return QVariant::fromValue(QDBusVariant(true));
        registered += message.arguments().value(0).toString();
        return {};
    });
    StatusNotifierTray tray(desktop_);
    QPoint clicked;
    int paused = 0;
    tray.start({.pictures = {{.size = 1, .pixels = QByteArray("\xff\x01\x02\x03", 4)}},
                .toolTip = {},
                .needsAttention = true,
                .isRightToLeft = true},
               {{.label = u"Open"_s}, {.label = u"Pause"_s, .chosen = [&] { ++paused; }}},
               {.activated =
                    [&](int x, int y) {
                        clicked = {x, y};
                    },
                .placeChanged = [] {}});
    ASSERT_TRUE(becomes([&] { return tray.place() == TrayItem::Place::nowhere; }));
    for (int times = 1; times <= 2; ++times) {
        serve(watcher, u"/StatusNotifierWatcher"_s, area);
        ASSERT_TRUE(becomes([&] { return tray.place() == TrayItem::Place::shown; }));
        EXPECT_EQ(registered.size(), times);
        ASSERT_TRUE(bus_.connection().unregisterService(watcher));
        bus_.connection().unregisterObject(u"/StatusNotifierWatcher"_s);
        ASSERT_TRUE(becomes([&] { return tray.place() == TrayItem::Place::nowhere; }));
    }

    const QString& item = registered.first();
    const QString properties = u"org.freedesktop.DBus.Properties"_s;
    const auto property = [&](const QString& name) {
        return ask(item, u"/StatusNotifierItem"_s, properties, u"Get"_s,
                   {u"org.kde.StatusNotifierItem"_s, name})
            .value<QDBusVariant>()
            .variant();
    };
    EXPECT_EQ(property(u"Status"_s), u"NeedsAttention"_s);
    EXPECT_EQ(ask(item, u"/MenuBar"_s, properties, u"Get"_s,
                  {u"com.canonical.dbusmenu"_s, u"TextDirection"_s})
                  .value<QDBusVariant>()
                  .variant(),
              u"rtl"_s);
    const auto pictures = qdbus_cast<QList<BusPicture>>(property(u"IconPixmap"_s));
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_EQ(pictures[0].pixels, QByteArray("\xff\x01\x02\x03", 4));
    ask(item, u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s, u"Activate"_s, {7, 9});
    EXPECT_EQ(clicked, QPoint(7, 9));
    ask(item, u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, u"Event"_s,
        {2, u"clicked"_s, QVariant::fromValue(QDBusVariant(0)), 0U});
    EXPECT_EQ(paused, 1);
}

TEST_F(DesktopTest, aFileIsRevealedByWhateverTheDesktopHas) {
    std::vector<QStringList> started;
    DesktopFileManager files(desktop_, [&](const QString& program, const QStringList& arguments) {
        started.push_back(QStringList(program) + arguments);
    });
    files.reveal("/tmp/there is/none.txt");
    ASSERT_TRUE(becomes([&] { return !started.empty(); }));
    EXPECT_THAT(started, ElementsAre(QStringList{u"xdg-open"_s, u"/tmp/there is"_s}));

    QStringList shown;
    FakeService manager([&](const QDBusMessage& message) -> QVariant {
        shown = message.arguments().value(0).toStringList();
        return {};
    });
    serve(u"org.freedesktop.FileManager1"_s, u"/org/freedesktop/FileManager1"_s, manager);
    files.reveal("/tmp/50% \xff#.txt");
    ASSERT_TRUE(becomes([&] { return !shown.empty(); }));
    EXPECT_THAT(shown, ElementsAre(u"file:///tmp/50%25%20%FF%23.txt"_s));
    EXPECT_EQ(started.size(), 1u);
}

TEST_F(DesktopTest, thePortalChoosesAndWithoutOneTheFallback) {
    FakeDesktop fallback;
    fallback.choice = "/from/fallback";
    PortalFileChooser chooser(desktop_, fallback, [] { return QString(); });
    std::vector<std::optional<std::string>> chosen;
    const auto note = [&](const std::optional<std::string>& path) { chosen.push_back(path); };
    chooser.chooseFolder(u"Choose"_s, "/", note);
    ASSERT_TRUE(becomes([&] { return chosen.size() == 1; }));
    EXPECT_EQ(chosen.back(), "/from/fallback");

    QDBusObjectPath handle;
    bool isDirectory = false;
    FakeService portal([&](const QDBusMessage& message) {
        const auto options = qdbus_cast<QVariantMap>(message.arguments().value(2));
        isDirectory = options.value(u"directory"_s).toBool();
        handle = QDBusObjectPath(u"/org/freedesktop/portal/desktop/request/"_s +
                                 message.service().mid(1).replace(u'.', u'_') + u'/' +
                                 options.value(u"handle_token"_s).toString());
        return QVariant::fromValue(handle);
    });
    serve(u"org.freedesktop.portal.Desktop"_s, u"/org/freedesktop/portal/desktop"_s, portal);
    for (const uint response : {0U, 1U}) {
        handle = {};
        chooser.chooseFolder(u"Choose"_s, "/", note);
        ASSERT_TRUE(becomes([&] { return !handle.path().isEmpty(); }));
        EXPECT_TRUE(isDirectory);
        QDBusMessage answer = QDBusMessage::createSignal(
            handle.path(), u"org.freedesktop.portal.Request"_s, u"Response"_s);
        answer << response << QVariantMap{{u"uris"_s, QStringList{u"file:///a%20%C3%A9"_s}}};
        const std::size_t before = chosen.size();
        bus_.connection().send(answer);
        ASSERT_TRUE(becomes([&] { return chosen.size() > before; }));
    }
    EXPECT_THAT(chosen, ElementsAre("/from/fallback", "/a \xc3\xa9", std::nullopt));

    handle = {};
    chooser.chooseFolder(u"Choose"_s, "/", note);
    ASSERT_TRUE(becomes([&] { return !handle.path().isEmpty(); }));
    ASSERT_TRUE(bus_.connection().unregisterService(u"org.freedesktop.portal.Desktop"_s));
    EXPECT_TRUE(becomes([&] { return chosen.size() == 4; })) << "it went with its dialogue open";
}

TEST_F(DesktopTest, followsWhatThePortalTellsOfTheLook) {
    const QString portalName = u"org.freedesktop.portal.Desktop"_s;
    const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
    QString group;
    FakeService portal([&](const QDBusMessage& message) {
        group = message.arguments().value(0).toString();
        return QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(0U))));
    });
    serve(portalName, portalPath, portal);
    const ScratchFolder home;
    PortalAppearance appearance(desktop_, home.root());
    ASSERT_TRUE(becomes([&] { return group == u"org.gnome.desktop.wm.preferences"; }));
    for (const uint wish : {1U, 2U}) {
        QDBusMessage signal = QDBusMessage::createSignal(
            portalPath, u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
        signal << u"org.freedesktop.appearance"_s << u"color-scheme"_s
               << QVariant::fromValue(QDBusVariant(wish));
        bus_.connection().send(signal);
        EXPECT_TRUE(becomes([&] { return appearance.wishes().prefersDark == (wish == 1U); }));
    }
}

TEST(AutostartEntryTest, saysWhetherTheDesktopWillStartIt) {
    const ScratchFolder home;
    LinuxStorage storage;
    LinuxFileSystem fileSystem("test");
    AutostartEntry entry(storage, fileSystem, home.path("config"), "/opt/my \"apps\"/quillon");
    EXPECT_FALSE(entry.isOn());
    ASSERT_TRUE(entry.setOn(true));
    EXPECT_TRUE(entry.isOn());
    const std::string file = home.path("config/autostart/quillon.desktop");
    EXPECT_THAT(storage.readWhole(file, 10'000)->toStdString(),
                HasSubstr(R"(Exec="/opt/my \\"apps\\"/quillon")"));
    struct Case {
        const char* text;
        bool isOn;
    };
    const Case cases[] = {
        {"[Desktop Entry]\nHidden=true\n", false},
        {"[Desktop Entry]\nX-GNOME-Autostart-enabled=false\n", false},
        {"[Desktop Entry]\nName=x\n[Other]\nHidden=true\n", true},
    };
    for (const Case& c : cases) {
        home.write("config/autostart/quillon.desktop", c.text);
        EXPECT_EQ(entry.isOn(), c.isOn) << c.text;
    }
    ASSERT_TRUE(entry.setOn(false));
    EXPECT_FALSE(entry.isOn());
}

} // namespace
} // namespace quillon::testing
