import QtQuick

/// A surface with rounded corners at its start, its end or both.
Item {
    id: side

    property color color
    property int radius: 0
    property bool roundStart: true
    property bool roundEnd: true

    Rectangle {
        anchors.fill: parent
        radius: side.radius
        color: side.color
    }

    Rectangle {
        visible: side.radius > 0 && !side.roundStart
        anchors.left: parent.left
        width: side.radius
        height: parent.height
        color: side.color
    }

    Rectangle {
        visible: side.radius > 0 && !side.roundEnd
        anchors.right: parent.right
        width: side.radius
        height: parent.height
        color: side.color
    }
}
