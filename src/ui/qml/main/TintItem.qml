import QtQuick
import Quillon

/// A colour for a folder in a menu.
MenuItem {
    id: item

    required property int index
    required property string modelData
    property int tint: 0

    isChoice: true

    Rectangle {
        anchors.left: parent.left
        anchors.leftMargin: item.leftPadding
        anchors.verticalCenter: parent.verticalCenter
        width: 16
        height: 16
        radius: 8
        color: Theme.tint(item.tint)
        border.width: item.highlighted ? 1 : 0
        border.color: Theme.onAccent
        Accessible.ignored: true
    }
}
