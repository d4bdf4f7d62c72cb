import QtQuick

/// Lies over what can't be used for now.
Rectangle {
    color: Theme.scrim

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.AllButtons
        onWheel: wheel => wheel.accepted = true
    }
}
