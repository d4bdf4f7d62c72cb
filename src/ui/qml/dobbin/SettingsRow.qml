import QtQuick
import Quillon

/// A setting: what it is, what it means, and its control at the end.
Item {
    id: row

    property string title
    property string caption
    property color captionColor: Theme.text2
    property bool isFirst: false
    default property alias control: side.data

    width: parent ? parent.width : 0
    implicitHeight: Math.max(60, words.height + 24)

    Divider {
        visible: !row.isFirst
        width: parent.width
    }

    Column {
        id: words
        anchors.left: parent.left
        anchors.leftMargin: 17
        anchors.right: side.left
        anchors.rightMargin: Theme.s3 + 2
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        Label {
            width: parent.width
            text: row.title
            style: Theme.bodyMedium
            wrapMode: Text.Wrap
        }

        Label {
            width: parent.width
            visible: text !== ""
            text: row.caption
            style: Theme.caption
            color: row.captionColor
            wrapMode: Text.Wrap
        }
    }

    Row {
        id: side
        anchors.right: parent.right
        anchors.rightMargin: 17
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.s2
    }
}
