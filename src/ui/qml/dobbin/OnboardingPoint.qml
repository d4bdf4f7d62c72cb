import QtQuick
import Quillon

/// One thing to know about Quillon.
Item {
    id: point

    property string iconName
    property string title
    property string text

    width: parent ? parent.width : 0
    implicitHeight: Math.max(36, words.height)

    Tile {
        id: tile
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        size: 36
        color: Theme.accentSoft
        iconColor: Theme.accentOnSoft
        iconName: point.iconName
    }

    Column {
        id: words
        anchors.left: tile.right
        anchors.leftMargin: 14
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter

        Label {
            width: parent.width
            text: point.title
            style: Theme.bodyStrong
            wrapMode: Text.Wrap
        }

        Label {
            width: parent.width
            text: point.text
            style: Theme.body
            color: Theme.text2
            wrapMode: Text.Wrap
        }
    }
}
