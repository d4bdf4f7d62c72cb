import QtQuick
import Quillon

/// Where what is dragged would come to lie.
Rectangle {
    height: 2
    color: Theme.accent
    Accessible.ignored: true

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        anchors.horizontalCenter: parent.left
        width: 8
        height: 8
        radius: 4
        color: Theme.accent
    }
}
