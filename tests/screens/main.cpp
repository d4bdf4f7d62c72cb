#include "SampleHome.h"

#include "app/QmlScene.h"
#include "service/Services.h"
#include "support/FakeDesktop.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

#include <cstdio>

using namespace quillon;
using namespace quillon::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

struct Scene {
    QString name;
    QString window = u"MainWindow"_s;
    std::function<void(AppModel&, QQuickWindow&)> arrange = [](AppModel&, QQuickWindow&) {};
};

/// Add a scene here for every screen and state worth a look.
std::vector<Scene> scenes() {
    return {{.name = u"main"_s}};
}

} // namespace

/// screens SCENE FILE.png [--dark] [--size 1040x700]: a picture of one screen over a made-up home.
/// The scale is QT_SCALE_FACTOR.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", qgetenv("QUILLON_SCREEN_PLATFORM").isEmpty() ? "offscreen" : "xcb");
    qputenv("QT_QUICK_BACKEND", "software");
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addPositionalArgument(u"scene"_s, u"which, or \"list\""_s);
    parser.addPositionalArgument(u"file"_s, u"where to"_s);
    parser.addOption({u"dark"_s, u"in the dark"_s});
    parser.addOption({u"size"_s, u"of the window"_s, u"WxH"_s});
    parser.process(application);
    const QStringList words = parser.positionalArguments();
    if (words.value(0) == u"list") {
        for (const Scene& scene : scenes())
            std::printf("%s\n", qUtf8Printable(scene.name));
        return 0;
    }
    if (parser.isSet(u"dark"_s)) {
        QPalette dark(QColor(0x2b, 0x2d, 0x30));
        application.setPalette(dark);
    }
    const SampleHome home;
    Services services(home.folders());
    const auto store = services.startInstance();
    if (!store) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(store.error().message));
        return 1;
    }
    FakeDesktop desktop;
    AppModel model({.store = **store,
                    .services = services,
                    .fileChooser = desktop,
                    .fileManager = desktop,
                    .loginItem = desktop});
    const auto engine = makeQmlEngine(model);
    for (const Scene& scene : scenes()) {
        if (scene.name != words.value(0))
            continue;
        const auto window = makeWindow(*engine, scene.window);
        const QStringList size = parser.value(u"size"_s).split(u'x');
        if (size.size() == 2)
            window->resize(size[0].toInt(), size[1].toInt());
        window->show();
        scene.arrange(model, *window);
        // Long enough for what comes from the background and for every animation.
        QTimer::singleShot(1200, &application, [&] {
            application.exit(window->grabWindow().save(words.value(1)) ? 0 : 1);
        });
        return application.exec();
    }
    std::fprintf(stderr, "No scene of that name.\n");
    return 2;
}
