#include "Scene.h"

#include <QQmlComponent>
#include <QQuickItem>

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Over the window's own content.
void showGallery(Stage& stage) {
    QQmlComponent component(
        qmlEngine(&stage.window),
        QUrl::fromLocalFile(QStringLiteral(QUILLON_SOURCE_DIR "/tests/screens/Gallery.qml")));
    auto* const gallery = qobject_cast<QQuickItem*>(component.createWithInitialProperties(
        {{u"parent"_s, QVariant::fromValue(stage.window.contentItem())}, {u"z"_s, 10}}));
    if (!gallery)
        qFatal("%s", qUtf8Printable(component.errorString()));
    gallery->setParent(&stage.window);
    gallery->setSize(stage.window.size());
}

} // namespace

std::vector<Scene> controlsScenes() {
    return {{.name = u"components"_s, .arrange = showGallery}};
}

} // namespace quillon::testing
