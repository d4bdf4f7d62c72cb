import QtQuick

/// What a field is drawn on.
Rectangle {
    property bool active: false
    property bool wrong: false

    radius: Theme.rControl
    color: Theme.card
    border.width: 1
    border.color: wrong ? Theme.error : active ? Theme.accent : Theme.lineStrong

    Rectangle {
        anchors.fill: parent
        anchors.margins: -2
        visible: parent.active
        z: -1
        radius: parent.radius + 2
        color: "transparent"
        border.width: 2
        border.color: Theme.focusGlow
    }
}
