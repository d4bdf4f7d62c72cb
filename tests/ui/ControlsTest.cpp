#include "support/GuiApplication.h"
#include "support/PrintQt.h"
#include "ui/icons/ImageProviders.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;

/// A window full of controls, driven by its keys alone.
class ControlsTest : public ::testing::Test {
protected:
    ControlsTest() {
        engine_.addImportPath(u"qrc:/"_s);
        addImageProviders(engine_);
    }

    /// What is in the window. `heard` is what they said, in order.
    void show(const QByteArray& items) {
        QQmlComponent component(&engine_);
        component.setData(
            "import QtQuick\nimport Quillon\n"
            "Window { id: window; width: 700; height: 700; visible: true\n"
            "property var heard: []; function hear(word) { heard = heard.concat([word]) }\n" +
                items + "}",
            QUrl());
        window_.reset(qobject_cast<QQuickWindow*>(component.create()));
        if (!window_)
            throw std::runtime_error(component.errorString().toStdString());
        window_->requestActivate();
        settle();
    }

    void settle() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               const QString& text = {}) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers, text);
            QCoreApplication::sendEvent(window_.get(), &event);
        }
        settle();
    }

    [[nodiscard]] QStringList heard() const { return window_->property("heard").toStringList(); }

    [[nodiscard]] QString focused() const {
        const QQuickItem* item = window_->activeFocusItem();
        while (item && item->objectName().isEmpty())
            item = item->parentItem();
        return item ? item->objectName() : QString();
    }

    GuiApplication application_;
    QQmlEngine engine_;
    std::unique_ptr<QQuickWindow> window_;
};

bool isTyped(int key) {
    return key == Qt::Key_Minus || key == Qt::Key_Plus || (key >= Qt::Key_A && key <= Qt::Key_Z);
}

struct Keys {
    const char* what;
    QByteArray control;
    std::vector<int> keys;
    QStringList heard;
};

TEST_F(ControlsTest, AreWorkedByTheKeyboard) {
    const std::vector<Keys> table{
        {"a button by Enter and Space",
         "Button { focus: true; text: 'Go'; onClicked: hear('go') }",
         {Qt::Key_Return, Qt::Key_Space},
         {u"go"_s, u"go"_s}},
        {"nothing on busy buttons",
         "Button { focus: true; busy: true; text: 'Go'; onClicked: hear('go') }"
         "IconButton { busy: true; label: 'Run'; onClicked: hear('run') }",
         {Qt::Key_Return, Qt::Key_Space, Qt::Key_Tab, Qt::Key_Return, Qt::Key_Space},
         {}},
        {"a switch",
         "Switch { focus: true; onToggled: hear(checked) }",
         {Qt::Key_Space, Qt::Key_Space},
         {u"true"_s, u"false"_s}},
        {"a box for some of them",
         "TickBox { focus: true; checkState: Qt.PartiallyChecked; onToggled: hear(checkState) }",
         {Qt::Key_Space, Qt::Key_Space},
         {u"2"_s, u"0"_s}},
        {"segments, which end",
         "Segments { model: ['a', 'b', 'c']; onActivated: index => { currentIndex = index;"
         "hear(index) } Component.onCompleted: choose(1, true) }",
         {Qt::Key_Right, Qt::Key_Right, Qt::Key_Home},
         {u"1"_s, u"2"_s, u"0"_s}},
        {"dots, which go round",
         "TagDots { current: 'purple'; onChosen: word => { current = word; hear(word) }"
         "Component.onCompleted: choose(5, true) }",
         {Qt::Key_Right, Qt::Key_Right},
         {u"gray"_s, u"red"_s}},
        {"a stepper",
         "DayStepper { focus: true; value: 2; onModified: value => hear(value) }",
         {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Minus, Qt::Key_Minus, Qt::Key_Up},
         {u"3"_s, u"2"_s, u"1"_s, u"2"_s}},
        {"a picker by letter, which opens it first",
         "PillPicker { focus: true; model: ['Name', 'Kind', 'Size'];"
         "onActivated: index => hear(index) }",
         {Qt::Key_S, Qt::Key_Return, Qt::Key_K, Qt::Key_Return},
         {u"2"_s, u"1"_s}},
        {"a picker's menu",
         "PillPicker { focus: true; model: ['Name', 'Kind', 'Size'];"
         "onActivated: index => hear(index) }",
         {Qt::Key_Return, Qt::Key_Down, Qt::Key_Return, Qt::Key_Space, Qt::Key_Down,
          Qt::Key_Escape},
         {u"1"_s}},
        {"nothing beneath a picker's menu",
         "FocusScope { focus: true; Keys.onDeletePressed: hear('delete')\n"
         "PillPicker { focus: true; model: ['Name', 'Kind', 'Size'] } }",
         {Qt::Key_Return, Qt::Key_Delete, Qt::Key_Escape, Qt::Key_Delete},
         {u"delete"_s}},
        {"a menu by arrows and letters, and by nothing that is disabled",
         "Item { anchors.fill: parent; Menu { id: menu; Component.onCompleted: Qt.callLater(open)\n"
         "MenuItem { text: 'Edit…'; onTriggered: { hear('edit'); Qt.callLater(menu.open) } }"
         "MenuItem { text: 'Duplicate'; enabled: false; onTriggered: hear('duplicate') }"
         "MenuDivider {}"
         "Menu { title: 'Copy to'; MenuItem { text: 'Desktop'; onTriggered: { hear('desktop'); "
         "menu.open() } } }"
         "MenuItem { text: 'Delete'; onTriggered: { hear('delete'); Qt.callLater(menu.open) } } } "
         "}",
         {Qt::Key_Down, Qt::Key_Return, Qt::Key_D, Qt::Key_Space, Qt::Key_C, Qt::Key_Right,
          Qt::Key_Return, Qt::Key_Escape},
         {u"edit"_s, u"delete"_s, u"desktop"_s}},
    };
    for (const Keys& row : table) {
        SCOPED_TRACE(row.what);
        show(row.control);
        for (const int key : row.keys)
            press(key, Qt::NoModifier, isTyped(key) ? QString(QChar(key)) : QString());
        EXPECT_EQ(heard(), row.heard);
    }
}

TEST_F(ControlsTest, KeepTheFocusInASheetAndGiveItBack) {
    show(
        "Button { objectName: 'opener'; focus: true }\n"
        "property bool isOpen: false\n"
        "Loader { anchors.fill: parent; active: window.isOpen; sourceComponent: Sheet {"
        "title: 'Rule'; primary: save; onCloseRequested: { hear('close'); window.isOpen = false }\n"
        "Field { objectName: 'name'; focus: true; width: 100 }\n"
        "footer: [Button { objectName: 'cancel'; text: 'Cancel' },"
        "Button { id: save; objectName: 'save'; text: 'Save'; onClicked: hear('save') }] } }");
    EXPECT_EQ(focused(), u"opener"_s);
    window_->setProperty("isOpen", true);
    settle();
    EXPECT_EQ(focused(), u"name"_s);
    QStringList visited;
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_Tab);
        visited.append(focused());
    }
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    visited.append(focused());
    EXPECT_EQ(visited, (QStringList{u"cancel"_s, u"save"_s, u"name"_s, u"save"_s}));
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    press(Qt::Key_Return, Qt::ControlModifier);
    press(Qt::Key_Escape);
    EXPECT_EQ(heard(), (QStringList{u"save"_s, u"close"_s}));
    EXPECT_EQ(focused(), u"opener"_s);
}

TEST_F(ControlsTest, AreHitALittleBesideTheirEdgesWhereTheyAreSmall) {
    show(R"(
        Button { x: 20; y: 20; small: true; text: "Small"; onClicked: window.hear("small") }
        Button { x: 220; y: 20; kind: "link"; text: "Link"; onClicked: window.hear("link") }
        TagDots { x: 20; y: 120; onChosen: word => window.hear(word) }
        DayStepper { id: days; x: 20; y: 220; value: 5; onModified: value => window.hear(String(value)) }
    )");
    const auto click = [this](QPointF at) {
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const bool isPress = type == QEvent::MouseButtonPress;
            QMouseEvent event(type, at, at, Qt::LeftButton, isPress ? Qt::LeftButton : Qt::NoButton,
                              {});
            QCoreApplication::sendEvent(window_.get(), &event);
        }
        settle();
    };
    click({40, 18});
    click({240, 48});
    click({50, 146}); // below the second dot, and before it
    click({14, 246});
    const QQuickItem* days = window_->contentItem()->childItems().last();
    click({days->x() + days->width() + 6, 218});
    EXPECT_EQ(heard().join(u' '), u"small link orange 4 5"_s);
}

} // namespace
} // namespace quillon::testing
