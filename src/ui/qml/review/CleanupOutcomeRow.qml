import QtQuick
import Quillon

/// What came of a recipe, or a file that could not be tidied.
Item {
    id: row

    required property int index
    required property string title
    required property string iconName
    required property string text
    required property bool isError
    property bool isLast: false

    implicitHeight: isError ? Theme.scaled(53) : Theme.rowFile
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: text

    Tile {
        id: tile
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        size: 28
        color: row.isError ? Theme.errorSoft : Theme.isDark ? Theme.hover : Theme.sunken
        iconColor: row.isError ? Theme.error : Theme.text1
        iconName: row.iconName
        glyph: row.isError ? "alert" : ""
    }

    Label {
        anchors.left: tile.right
        anchors.leftMargin: Theme.s3
        anchors.right: done.left
        anchors.rightMargin: Theme.s3
        anchors.verticalCenter: parent.verticalCenter
        visible: !row.isError
        text: row.isError ? "" : row.title
        style: Theme.bodyMedium
        Accessible.ignored: true
    }

    Label {
        id: done
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        visible: !row.isError
        text: row.isError ? "" : row.text
        color: Theme.text2
        elide: Text.ElideNone
        Accessible.ignored: true
    }

    Column {
        anchors.left: tile.right
        anchors.leftMargin: Theme.s3
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        visible: row.isError

        Label {
            width: parent.width
            text: row.isError ? row.title : ""
            style: Theme.bodyMedium
            color: Theme.error
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }

        Label {
            width: parent.width
            text: row.isError ? row.text : ""
            style: Theme.caption
            color: Theme.error
            Accessible.ignored: true
        }
    }

    Divider {
        visible: !row.isLast
        width: parent.width
        anchors.bottom: parent.bottom
    }
}
