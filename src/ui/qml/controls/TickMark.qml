import QtQuick

/// The square of a tick box: a tick, a bar for some, or nothing.
Rectangle {
    id: mark

    property int checkState: Qt.Unchecked

    implicitWidth: 16
    implicitHeight: 16
    radius: Theme.rTick
    color: checkState === Qt.Unchecked ? "transparent" : Theme.accent
    border.width: checkState === Qt.Unchecked ? 1.5 : 0
    border.color: Theme.tickOutline

    Glyph {
        anchors.centerIn: parent
        name: mark.checkState === Qt.Checked ? "tick" : mark.checkState === Qt.PartiallyChecked ? "bar" : ""
        size: 12
        color: Theme.onAccent
    }
}
