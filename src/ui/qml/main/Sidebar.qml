import QtQuick
import Quillon

/// The list of folders, and what is added to it: a folder that is dragged here from a file manager comes
/// where the line is.
Item {
    id: sidebar

    property int radius: 0
    property Item carried
    /// What the window's buttons take of the first row.
    property real startInset: 0
    readonly property alias list: list

    /// Places are those of the window's contents.
    function carryRule(x, y) {
        const place = list.mapFromItem(carried.parent, x, y);
        list.carryRule(place.x, place.y);
    }

    function dropRule(x, y) {
        carryRule(x, y);
        const target = list.ruleTarget >= 0 ? list.itemAtIndex(list.ruleTarget) : null;
        if (target)
            App.folders.copyRule(carried.key, target.key);
    }

    function ruleGone() {
        list.dragEnded();
    }

    RoundedSide {
        anchors.fill: parent
        radius: sidebar.radius
        color: Theme.sidebar
        roundEnd: false
    }

    Divider {
        anchors.right: parent.right
        height: parent.height
    }

    DropArea {
        function carry(drag) {
            const place = mapToItem(list, drag.x, drag.y);
            list.dragTo(place.x, place.y);
        }

        anchors.fill: parent
        onEntered: drag => drag.accepted = drag.hasUrls && App.folders.mayTake(drag.urls)
        onPositionChanged: drag => carry(drag)
        onExited: list.dragEnded()
        onDropped: drop => {
            carry(drop);
            const row = list.insertion;
            list.dragEnded();
            App.folders.addDropped(drop.urls, row);
            drop.accept(Qt.CopyAction);
        }
    }

    DragArea {
        width: parent.width
        height: 60
    }

    Tile {
        id: mark
        anchors.left: parent.left
        anchors.leftMargin: (sidebar.startInset > 0 ? Theme.s4 : 18) + sidebar.startInset
        y: 17
        size: 26
        radius: Theme.rControl
        color: Theme.accent
        glyph: "guard"
        iconColor: Theme.onAccent
    }

    Label {
        anchors.left: mark.right
        anchors.leftMargin: 9
        anchors.verticalCenter: mark.verticalCenter
        text: "Quillon"
        style: Theme.heading
        Accessible.role: Accessible.Heading
    }

    Label {
        id: title
        anchors.left: parent.left
        anchors.leftMargin: Theme.s5
        y: 64
        text: qsTr("Folders")
        style: Theme.microStrong
        color: Theme.text3
        Accessible.role: Accessible.Heading
    }

    FolderList {
        id: list
        anchors.top: title.bottom
        anchors.topMargin: 7
        anchors.bottom: line.top
        width: parent.width
        ruleName: sidebar.carried.name
    }

    Divider {
        id: line
        anchors.bottom: footer.top
        width: parent.width
    }

    Item {
        id: footer
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.scaled(56)

        Button {
            anchors.left: parent.left
            anchors.leftMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parent.width - icons.width - Theme.s4 - 10 - 6)
            kind: "plain"
            iconName: "list-add"
            text: qsTr("Add Folder")
            shortcutText: "Ctrl+Shift+N"
            toolTip: qsTr("Add a folder to keep tidy")
            onClicked: App.folders.chooseNew()
        }

        Row {
            id: icons
            anchors.right: parent.right
            anchors.rightMargin: Theme.s4
            anchors.verticalCenter: parent.verticalCenter
            spacing: 6

            IconButton {
                kind: "quiet"
                iconName: App.folders.isPaused ? "media-playback-start" : "media-playback-pause"
                fillColor: App.folders.isPaused ? Theme.warnSoft : "transparent"
                iconColor: App.folders.isPaused ? Theme.warn : Theme.text2
                label: App.folders.isPaused ? qsTr("Resume") : qsTr("Pause")
                shortcutText: "Ctrl+."
                onClicked: App.folders.togglePaused()
            }

            IconButton {
                kind: "quiet"
                iconName: "configure"
                label: qsTr("Settings")
                shortcutText: "Ctrl+,"
                onClicked: App.settings.open()
            }
        }
    }
}
