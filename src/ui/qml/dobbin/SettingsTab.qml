import QtQuick
import QtQuick.Templates as T
import Quillon

/// A page of the settings, to go to.
T.RadioButton {
    id: tab

    property string iconName
    property string glyph
    property int radius: Theme.rRow

    width: parent ? parent.width : 0
    implicitHeight: Theme.scaled(38)
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.RadioButton
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: clicked()
    Keys.onPressed: event => Keystroke.press(event, tab)

    contentItem: Item {
        Symbol {
            anchors.horizontalCenter: parent.left
            anchors.horizontalCenterOffset: 20
            anchors.verticalCenter: parent.verticalCenter
            iconName: tab.iconName
            glyph: tab.glyph
            size: tab.glyph === "" ? 16 : 14
            color: tab.glyph === "" ? Theme.text2 : Theme.dobbin
        }

        Label {
            anchors.left: parent.left
            anchors.leftMargin: 38
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: tab.text
            style: Theme.bodyMedium
            Accessible.ignored: true
        }
    }

    background: Rectangle {
        radius: tab.radius
        color: tab.checked ? Theme.selected : tab.hovered ? Theme.hover : "transparent"
        border.width: tab.checked ? 1 : 0
        border.color: Theme.line

        Shadow {
            elevation: tab.checked ? 1 : 0
        }
    }

    FocusRing {
        target: tab
        anchors.margins: -1
    }
}
