#include "app/QmlScene.h"

#include "ui/icons/ImageProviders.h"

#include <QQmlComponent>
#include <QQmlContext>

#include <tuple>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

std::unique_ptr<QQmlEngine> makeQmlEngine(AppModel& model, DesktopAppearance* appearance) {
    auto engine = std::make_unique<QQmlEngine>();
    engine->addImportPath(u"qrc:/"_s);
    addImageProviders(*engine);
    engine->rootContext()->setContextProperty(u"Desktop"_s,
                                              new DesktopLook(appearance, engine.get()));
    engine->rootContext()->setContextProperty(u"App"_s, &model);
    return engine;
}

DesktopLook& desktopLook(const QQmlEngine& engine) {
    return *engine.rootContext()->contextProperty(u"Desktop"_s).value<DesktopLook*>();
}

std::unique_ptr<QQuickWindow> makeWindow(QQmlEngine& engine, const QString& type) {
    QQmlComponent component(&engine);
    component.setData(u"import Quillon\n%1 {}"_s.arg(type).toUtf8(), QUrl());
    std::unique_ptr<QObject> made(component.create());
    if (!made)
        qFatal("%s", qUtf8Printable(component.errorString()));
    auto* const window = qobject_cast<QQuickWindow*>(made.get());
    if (!window)
        qFatal("%s is no window", qUtf8Printable(type));
    std::ignore = made.release();
    return std::unique_ptr<QQuickWindow>(window);
}

} // namespace quillon
