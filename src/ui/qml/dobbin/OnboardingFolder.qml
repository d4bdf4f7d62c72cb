import QtQuick
import Quillon

/// A folder that may be watched; the whole row ticks it.
Item {
    id: row

    required property string key
    required property string name
    required property string place
    required property string countText
    required property string reason
    required property string symbol
    required property int tint
    required property bool isTicked
    required property bool canTick
    required property bool isWatched

    width: parent ? parent.width : 0
    implicitHeight: Math.max(56, words.height + 20)

    MouseArea {
        anchors.fill: parent
        enabled: row.canTick
        onClicked: App.onboarding.setTicked(row.key, !row.isTicked)
    }

    TickBox {
        id: tick
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        label: row.name
        description: row.reason !== "" ? row.reason : row.countText
        enabled: row.canTick
        checkState: row.isTicked ? Qt.Checked : Qt.Unchecked
        onToggled: {
            App.onboarding.setTicked(row.key, checkState === Qt.Checked);
            checkState = Qt.binding(() => row.isTicked ? Qt.Checked : Qt.Unchecked);
        }
    }

    FolderTile {
        id: tile
        anchors.left: tick.right
        anchors.leftMargin: Theme.s3
        anchors.verticalCenter: parent.verticalCenter
        tint: row.tint
        symbol: row.symbol
        size: 32
        opacity: row.reason === "" ? 1 : 0.55
    }

    Column {
        id: words
        anchors.left: tile.right
        anchors.leftMargin: Theme.s3
        anchors.right: count.left
        anchors.rightMargin: Theme.s3
        anchors.verticalCenter: parent.verticalCenter

        Label {
            width: parent.width
            text: row.name
            style: Theme.bodyMedium
            Accessible.ignored: true
        }

        Label {
            width: parent.width
            text: row.reason !== "" ? row.reason : row.place
            style: Theme.caption
            color: row.reason !== "" ? Theme.warn : Theme.text2
            wrapMode: row.reason !== "" ? Text.Wrap : Text.NoWrap
            Accessible.ignored: true
        }
    }

    Label {
        id: count
        anchors.right: parent.right
        anchors.rightMargin: Theme.s4
        anchors.verticalCenter: parent.verticalCenter
        text: row.isWatched ? qsTr("Watched already") : row.countText
        style: Theme.caption
        color: Theme.text2
        Accessible.ignored: true
    }

    Divider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
