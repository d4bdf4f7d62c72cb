import QtQuick

/// The ring around what has the keyboard's focus: put it into the control.
Rectangle {
    property Item target: parent
    property int targetRadius: target && target.radius !== undefined ? target.radius : Theme.rControl
    property bool shown: target ? target.visualFocus === true : false
    readonly property int distance: Theme.focusGap + Theme.focusWidth

    anchors.fill: parent
    anchors.margins: -distance
    radius: targetRadius + distance
    color: "transparent"
    border.width: Theme.focusWidth
    border.color: Theme.accent
    visible: shown
    z: 1
    Accessible.ignored: true
}
