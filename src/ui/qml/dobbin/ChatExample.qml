import QtQuick
import QtQuick.Templates as T
import Quillon

/// A question to begin with.
T.Button {
    id: chip

    property int radius: height / 2

    implicitHeight: Theme.controlSmall
    implicitWidth: Math.min(words.implicitWidth, parent ? parent.width : 240)
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    containmentMask: hitArea
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: qsTr("Ask Dobbin")
    Keys.onPressed: event => Keystroke.press(event, chip)

    HitArea {
        id: hitArea
    }

    contentItem: Label {
        id: words
        leftPadding: 10
        rightPadding: 10
        text: chip.text
        style: Theme.caption
        color: Theme.text2
        Accessible.ignored: true
    }

    background: Rectangle {
        radius: chip.radius
        color: chip.hovered || chip.down ? Theme.hover : Theme.card
        border.width: 1
        border.color: Theme.line
    }

    FocusRing {
        target: chip
    }
}
