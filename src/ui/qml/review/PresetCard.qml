import QtQuick
import Quillon

/// A ready-made rule, to be added.
Card {
    id: card

    required property string key
    required property string sentence
    required property string iconName
    required property bool isAdded

    signal added

    implicitHeight: Math.max(Theme.scaled(78), words.y + words.height + 14)
    Accessible.role: Accessible.ListItem
    Accessible.name: key
    Accessible.description: sentence

    function takeFocus(reason) {
        addButton.forceActiveFocus(reason);
    }

    Tile {
        id: tile
        anchors.left: parent.left
        anchors.leftMargin: 14
        y: 14
        iconName: card.iconName
        iconColor: Theme.text1
    }

    Column {
        id: words
        anchors.left: tile.right
        anchors.leftMargin: Theme.s3
        anchors.right: card.isAdded ? badge.left : addButton.left
        anchors.rightMargin: Theme.s3
        y: 14

        Label {
            width: parent.width
            text: card.key
            style: Theme.bodyStrong
            Accessible.ignored: true
        }

        Label {
            width: parent.width
            text: card.sentence
            style: Theme.caption
            color: Theme.text2
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }

    Button {
        id: addButton
        anchors.right: parent.right
        anchors.rightMargin: 14
        y: 14
        visible: !card.isAdded
        small: true
        text: qsTr("Add")
        Accessible.name: qsTr("Add %1").arg(card.key)
        onClicked: {
            App.presets.add(card.key);
            card.added();
        }
    }

    Badge {
        id: badge
        anchors.right: parent.right
        anchors.rightMargin: 14
        y: 14
        visible: card.isAdded
        implicitHeight: Theme.controlSmall
        radius: Theme.rTile
        kind: "ok"
        glyph: "tick"
        text: qsTr("Added")
    }
}
