#include "Items.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QQuickWindow>
#include <QTimer>

namespace quillon::testing {

using namespace std::chrono_literals;

namespace {

QQuickItem* findIn(QQuickItem* root, const QByteArray& type, int& after) {
    if (QByteArray(root->metaObject()->className()).startsWith(type + "_QML") && after-- == 0)
        return root;
    for (QQuickItem* const child : root->childItems())
        if (QQuickItem* const found = findIn(child, type, after))
            return found;
    return nullptr;
}

void call(QObject* object, const char* method) {
    if (!QMetaObject::invokeMethod(object, method))
        qFatal("nothing has a method %s", method);
}

} // namespace

QQuickItem* findItem(QQuickItem* root, const QByteArray& type, int after) {
    QQuickItem* const found = findIn(root, type, after);
    if (!found)
        qFatal("there is no such %s", type.constData());
    return found;
}

QQuickItem* findItem(Stage& stage, const QByteArray& type, int after) {
    return findItem(stage.window.contentItem(), type, after);
}

void later(Stage& stage, std::function<void()> then) {
    QTimer::singleShot(400ms, &stage.window, std::move(then));
}

std::function<void(Stage&)> calling(const QByteArray& type, const char* method, int after) {
    return [=](Stage& stage) {
        later(stage, [&stage, type, method, after] { call(findItem(stage, type, after), method); });
    };
}

std::function<void(Stage&)> opening(const QByteArray& type, int after) {
    return [=](Stage& stage) {
        later(stage, [&stage, type, after] {
            call(findItem(stage, type, after)->property("popup").value<QObject*>(), "open");
        });
    };
}

void press(Stage& stage, const std::vector<Qt::Key>& keys) {
    for (const Qt::Key key : keys)
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier);
            QCoreApplication::sendEvent(&stage.window, &event);
        }
}

} // namespace quillon::testing
