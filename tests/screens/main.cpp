#include "SampleModel.h"
#include "Scene.h"
#include "service/Services.h"
#include "store/SettingsTable.h"
#include "ui/Translations.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFont>
#include <QPalette>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstdio>
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace quillon;
using namespace quillon::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<Scene> scenes() {
    std::vector<Scene> all;
    for (const auto& some :
         {mainScenes, editorScenes, reviewScenes, historyScenes, dobbinScenes, controlsScenes})
        for (const Scene& scene : some())
            all.push_back(scene);
    return all;
}

/// A folder that nobody may read can be read by root, unless root does without that.
void letPermissionsCount() {
    __user_cap_header_struct header{.version = _LINUX_CAPABILITY_VERSION_3, .pid = 0};
    std::array<__user_cap_data_struct, 2> data{};
    if (::syscall(SYS_capget, &header, data.data()) != 0)
        return;
    data[0].effective &= ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH);
    ::syscall(SYS_capset, &header, data.data());
}

/// The sample home is the home; what is cached for the real one stays of use.
void moveInto(const SampleHome& home) {
    if (qEnvironmentVariableIsEmpty("XDG_CACHE_HOME"))
        qputenv("XDG_CACHE_HOME", qgetenv("HOME") + "/.cache");
    qputenv("HOME", QByteArray::fromStdString(home.home()));
    for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        qunsetenv(name);
}

void choose(Services& services, const QString& key, const QString& value) {
    if (const auto chosen = setSetting(services.settings(), *findSetting(key), value); !chosen)
        qFatal("%s", qUtf8Printable(chosen.error().message));
}

/// Takes the picture once the scene has settled and is ready. Its time passes in small steps, of
/// which a busy computer takes no two at once.
void takeWhenReady(QApplication& application, const Scene& scene, Stage& stage,
                   const QString& file) {
    constexpr std::chrono::milliseconds step(100);
    constexpr std::chrono::seconds patience(20);
    auto* const clock = new QTimer(&stage.window);
    QObject::connect(clock, &QTimer::timeout, &application,
                     [&, clock, file, passed = std::chrono::milliseconds(0)]() mutable {
                         passed += step;
                         if (passed < scene.settling ||
                             (!scene.isReady(stage) && passed < patience))
                             return;
                         clock->stop();
                         application.exit(stage.window.grabWindow().save(file) ? 0 : 1);
                     });
    clock->start(step);
}

/// "960x640".
QSize sizeFrom(const QString& text) {
    const QStringList size = text.split(u'x');
    return size.size() == 2 ? QSize(size[0].toInt(), size[1].toInt()) : QSize();
}

int takePicture(QApplication& application, const Scene& scene, SampleHome& home, const QSize& size,
                const QString& file) {
    ModelServer server;
    playSampleModel(server);
    Services services(home.folders(), SaidIn::window);
    choose(services, u"ai.localHost"_s, server.host());
    choose(services, u"hasOnboarded"_s, scene.isFirstRun ? u"false"_s : u"true"_s);
    const auto store = services.startInstance();
    if (!store)
        qFatal("%s", qUtf8Printable(store.error().message));
    FakeDesktop desktop;
    AppModel model({.store = **store,
                    .services = services,
                    .fileChooser = desktop,
                    .fileManager = desktop,
                    .loginItem = desktop});
    const auto engine = makeQmlEngine(model);
    const auto window = makeWindow(*engine, scene.window);
    if (size.isValid() && scene.window == Scene().window)
        window->resize(size);
    window->show();
    Stage stage{model, *window, **store, services, home, desktop, server};
    scene.arrange(stage);
    if (!file.isEmpty())
        takeWhenReady(application, scene, stage, file);
    return application.exec();
}

} // namespace

/// A picture of one screen over a made-up home, or with --stay the screen itself on the desktop.
/// The scale is QT_SCALE_FACTOR.
int main(int argc, char** argv) {
    letPermissionsCount();
    QCommandLineParser parser;
    parser.addPositionalArgument(u"scene"_s, u"which, or \"list\""_s);
    parser.addPositionalArgument(u"file"_s, u"where to"_s);
    parser.addOptions({{u"dark"_s, u"in the dark"_s},
                       {u"contrast"_s, u"in black and white"_s},
                       {u"rtl"_s, u"from right to left"_s},
                       {u"stay"_s, u"show it until it is closed"_s},
                       {u"size"_s, u"of the window"_s, u"WxH"_s},
                       {u"font-size"_s, u"of the desktop's font"_s, u"points"_s}});
    QStringList words;
    for (int i = 0; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    if (!parser.parse(words)) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(parser.errorText()));
        return 2;
    }
    const QStringList named = parser.positionalArguments();
    const std::vector<Scene> all = scenes();
    if (named.value(0) == u"list") {
        for (const Scene& scene : all)
            std::printf("%s\n", qUtf8Printable(scene.name));
        return 0;
    }
    const auto scene = std::ranges::find(all, named.value(0), &Scene::name);
    const bool stays = parser.isSet(u"stay"_s);
    if (scene == all.end() || named.size() != (stays ? 1 : 2)) {
        std::fprintf(
            stderr,
            "usage: screens list | SCENE --stay | SCENE FILE.png [--dark] [--contrast] [--rtl] "
            "[--size WxH] [--font-size POINTS]\n");
        return 2;
    }
    if (!stays)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    SampleHome home(scene->home);
    moveInto(home);
    QApplication application(argc, argv);
    installTranslations(application);
    if (parser.isSet(u"dark"_s))
        QApplication::setPalette(QPalette(QColor(0x2b, 0x2d, 0x30)));
    if (parser.isSet(u"contrast"_s)) {
        const bool isDark = parser.isSet(u"dark"_s);
        QApplication::setPalette(QPalette(isDark ? Qt::black : Qt::white));
    }
    if (parser.isSet(u"rtl"_s))
        QApplication::setLayoutDirection(Qt::RightToLeft);
    // As a desktop says it: by a font that is installed.
    if (parser.isSet(u"font-size"_s)) {
        QFont font(u"Inter"_s);
        font.setPointSizeF(parser.value(u"font-size"_s).toDouble());
        QApplication::setFont(font);
    }
    return takePicture(application, *scene, home, sizeFrom(parser.value(u"size"_s)),
                       named.value(1));
}
