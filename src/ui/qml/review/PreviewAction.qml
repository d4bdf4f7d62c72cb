import QtQuick
import Quillon

/// One thing that would happen to a file.
Item {
    id: action

    property string iconName
    property string text

    implicitHeight: words.implicitHeight

    Icon {
        id: icon
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        name: action.iconName
        size: 14
        color: Theme.text2
    }

    Label {
        id: words
        anchors.left: icon.right
        anchors.leftMargin: Theme.s2
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: action.text
        Accessible.ignored: true
    }
}
