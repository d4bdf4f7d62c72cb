import QtQuick
import Quillon

/// A rule that is offered: why, and what it does.
Item {
    id: card

    required property int index
    required property string key
    required property string title
    required property string reason
    required property string sentence
    required property string iconName
    required property string caution
    property bool isFirst: false

    implicitHeight: Math.max(Theme.scaled(55), words.implicitHeight + 20)
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: [reason, sentence, caution].filter(text => text !== "").join(" ")

    Divider {
        visible: !card.isFirst
        width: parent.width
    }

    TipArea {
        anchors.fill: words
        text: card.sentence
    }

    Tile {
        id: tile
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        iconName: card.iconName
        iconColor: Theme.text1
    }

    Column {
        id: words
        anchors.left: tile.right
        anchors.leftMargin: Theme.s3
        anchors.right: addButton.left
        anchors.rightMargin: Theme.s3
        anchors.verticalCenter: parent.verticalCenter

        Label {
            width: parent.width
            text: card.title
            style: Theme.bodyMedium
            Accessible.ignored: true
        }

        Label {
            width: parent.width
            text: card.reason
            style: Theme.caption
            color: Theme.text2
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        Label {
            width: parent.width
            visible: text !== ""
            text: card.caution
            style: Theme.caption
            color: Theme.warn
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }

    Button {
        id: addButton
        anchors.right: dismissButton.left
        anchors.rightMargin: Theme.s1
        anchors.verticalCenter: parent.verticalCenter
        small: true
        text: qsTr("Add")
        toolTip: card.sentence
        Accessible.name: qsTr("Add %1").arg(card.title)
        Accessible.description: card.sentence
        onClicked: App.suggestions.add(card.key)
    }

    IconButton {
        id: dismissButton
        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        kind: "quiet"
        glyph: "cross"
        iconSize: 12
        label: qsTr("Don’t suggest %1").arg(card.title)
        onClicked: App.suggestions.dismiss(card.key)
    }
}
