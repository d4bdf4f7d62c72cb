import QtQuick
import Quillon

/// The rule card that is being dragged, under the pointer. Positions are those of its parent.
Card {
    id: hand

    property string key
    property string name
    property string iconName
    readonly property bool isCarrying: key !== ""

    signal moved(real x, real y)
    signal dropped(real x, real y)
    signal ended

    visible: isCarrying
    width: Math.min(420, row.implicitWidth + 40)
    height: Theme.scaled(56)
    elevation: 2
    highlighted: true
    opacity: 0.96
    Accessible.ignored: true

    function take(rule) {
        name = rule.name;
        iconName = rule.iconName;
        key = rule.key;
    }

    function move(place) {
        x = place.x + 14;
        y = place.y + 22;
        moved(place.x, place.y);
    }

    function letGo(place) {
        if (isCarrying)
            dropped(place.x, place.y);
        cancel();
    }

    function cancel() {
        key = "";
        ended();
    }

    Shortcut {
        sequence: "Escape"
        enabled: hand.isCarrying
        onActivated: hand.cancel()
    }

    Row {
        id: row
        anchors.left: parent.left
        anchors.leftMargin: Theme.s3
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.s3

        Glyph {
            anchors.verticalCenter: parent.verticalCenter
            name: "grip"
            color: Theme.text3
        }

        Tile {
            iconName: hand.iconName
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, 300)
            text: hand.name
            style: Theme.bodyStrong
        }
    }
}
