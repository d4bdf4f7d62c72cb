import QtQuick
import QtQuick.Templates as T
import Quillon

/// The folders of the popover. One stop of the Tab key: the run button of the current one.
ListView {
    id: list

    model: App.popover.folders
    clip: true
    topMargin: 6
    bottomMargin: 6
    reuseItems: true
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    boundsBehavior: Flickable.StopAtBounds
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Folders")

    function go(index) {
        if (count === 0)
            return;
        currentIndex = Math.max(0, Math.min(count - 1, index));
        positionViewAtIndex(currentIndex, ListView.Contain);
        currentItem.run.forceActiveFocus(Qt.TabFocusReason);
        currentItem.run.focusReason = Qt.TabFocusReason;
    }

    function runCurrent() {
        if (currentItem)
            currentItem.runNow();
    }

    Keys.onPressed: event => {
        const target = Keystroke.inList(event, currentIndex, count);
        event.accepted = target !== undefined;
        if (event.accepted)
            go(target);
    }

    delegate: FocusScope {
        id: row

        required property int index
        required property string key
        required property string name
        required property int tint
        required property string symbol
        required property string statusText
        required property bool isTrouble
        required property bool canRun
        required property bool isRunning
        readonly property Item run: runButton

        width: ListView.view.width
        height: Theme.rowPopover

        Accessible.role: Accessible.ListItem
        Accessible.name: name
        Accessible.description: statusText
        Accessible.onPressAction: App.popover.openFolder(key)

        // It waits for another folder: till then nobody is told of it.
        ListView.onPooled: visible = false
        ListView.onReused: visible = true

        function runNow() {
            if (canRun)
                App.popover.run(key);
        }

        T.AbstractButton {
            id: surface
            anchors.fill: parent
            anchors.leftMargin: 6
            anchors.rightMargin: 6
            focusPolicy: Qt.NoFocus
            hoverEnabled: true
            onClicked: App.popover.openFolder(row.key)
            Accessible.ignored: true
            background: Rectangle {
                radius: Theme.rRow
                color: surface.hovered ? Theme.hover : "transparent"
            }
        }

        FolderTile {
            id: tile
            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            size: 26
            tint: row.tint
            symbol: row.symbol
            opacity: row.canRun ? 1 : 0.55
        }

        Label {
            anchors.left: tile.right
            anchors.leftMargin: 10
            anchors.right: status.left
            anchors.rightMargin: Theme.s2
            anchors.verticalCenter: parent.verticalCenter
            text: row.name
            style: Theme.bodyMedium
            Accessible.ignored: true
        }

        Label {
            id: status
            width: Math.min(implicitWidth, row.width / 2)
            anchors.right: runButton.left
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            text: row.statusText
            style: Theme.caption
            color: row.isTrouble && !row.isRunning ? Theme.warn : Theme.text2
            Accessible.ignored: true
        }

        IconButton {
            id: runButton
            anchors.right: parent.right
            anchors.rightMargin: Theme.s2
            anchors.verticalCenter: parent.verticalCenter
            kind: "quiet"
            iconName: "media-playback-start"
            iconColor: Theme.accent
            iconSize: 14
            busy: row.isRunning
            enabled: row.canRun
            focus: true
            focusPolicy: row.ListView.isCurrentItem || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            label: qsTr("Run %1 now").arg(row.name)
            disabledReason: row.statusText
            onClicked: {
                row.ListView.view.currentIndex = row.index;
                row.runNow();
            }
        }
    }
}
