import QtQuick
import Quillon

/// A file that an answer speaks of.
Card {
    id: card

    property var entry
    property int reach: Qt.StrongFocus

    implicitHeight: links.y + links.height + 7
    Accessible.role: Accessible.Grouping
    Accessible.name: entry.fileName
    Accessible.description: entry.what

    FileTile {
        id: tile
        anchors.left: parent.left
        anchors.leftMargin: 11
        y: Theme.s3 + 1
        size: 28
        fileName: card.entry.fileName
        kind: card.entry.kind
    }

    Label {
        id: name
        anchors.left: tile.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        anchors.rightMargin: Theme.s3
        y: 10
        text: card.entry.fileName
        style: Theme.bodyMedium
        elide: Text.ElideMiddle
        Accessible.ignored: true
    }

    Label {
        id: what
        anchors.left: name.left
        anchors.right: name.right
        anchors.top: name.bottom
        text: card.entry.what
        style: Theme.caption
        color: card.entry.isError ? Theme.error : Theme.text2
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    Row {
        id: links
        anchors.left: name.left
        anchors.leftMargin: -8
        anchors.top: what.bottom
        anchors.topMargin: 1
        height: card.entry.canReveal || card.entry.canUndo ? Theme.controlSmall : 0

        Button {
            visible: card.entry.canReveal
            kind: "link"
            small: true
            text: qsTr("Reveal")
            focusPolicy: card.reach
            Accessible.name: qsTr("Reveal %1").arg(card.entry.fileName)
            onClicked: App.entries.reveal(card.entry.key)
        }

        Button {
            visible: card.entry.canUndo
            kind: "link"
            small: true
            text: qsTr("Undo")
            focusPolicy: card.reach
            Accessible.name: qsTr("Undo %1").arg(card.entry.fileName)
            onClicked: App.entries.undo(card.entry.key)
        }
    }
}
