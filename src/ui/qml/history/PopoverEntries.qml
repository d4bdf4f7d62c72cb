import QtQuick
import QtQuick.Templates as T
import Quillon

/// The newest entries in the popover. Enter reveals.
ListView {
    id: list

    model: App.popover.entries
    interactive: false
    keyNavigationEnabled: false
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Recent activity")

    delegate: T.ItemDelegate {
        id: row

        required property int index
        required property string key
        required property string fileName
        required property string kind
        required property string secondLine
        required property string timeText
        required property bool isError

        width: ListView.view.width
        height: Theme.rowPopover
        focusPolicy: ListView.isCurrentItem || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
        hoverEnabled: true
        onClicked: App.entries.reveal(key)
        Keys.onPressed: event => {
            const target = Keystroke.inList(event, index, ListView.view.count);
            const isEnter = Keystroke.isEnter(event);
            event.accepted = isEnter || target !== undefined;
            if (isEnter)
                clicked();
            else if (event.accepted)
                go(target);
        }

        Accessible.role: Accessible.ListItem
        Accessible.name: fileName
        Accessible.description: [secondLine, timeText].join(", ")
        Accessible.onPressAction: clicked()

        function go(index) {
            const view = ListView.view;
            view.currentIndex = Math.max(0, Math.min(view.count - 1, index));
            view.currentItem.forceActiveFocus(Qt.TabFocusReason);
            view.currentItem.focusReason = Qt.TabFocusReason;
        }

        background: Rectangle {
            anchors.fill: parent
            anchors.leftMargin: 6
            anchors.rightMargin: 6
            radius: Theme.rRow
            color: row.hovered ? Theme.hover : "transparent"
        }

        FileTile {
            id: tile
            visible: !row.isError
            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            size: 26
            fileName: row.fileName
            kind: row.kind
        }

        Tile {
            visible: row.isError
            anchors.fill: tile
            size: 26
            color: Theme.errorSoft
            glyph: "alert"
            iconSize: 14
            iconColor: Theme.error
        }

        Label {
            id: name
            anchors.left: tile.right
            anchors.leftMargin: 10
            anchors.right: time.left
            anchors.rightMargin: Theme.s2
            anchors.bottom: parent.verticalCenter
            anchors.bottomMargin: -1
            text: row.fileName
            style: Theme.bodyMedium
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }

        Label {
            anchors.left: name.left
            anchors.right: name.right
            anchors.top: name.bottom
            text: row.secondLine
            style: Theme.microPlain
            color: row.isError ? Theme.error : Theme.text2
            Accessible.ignored: true
        }

        Label {
            id: time
            anchors.right: parent.right
            anchors.rightMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            text: row.timeText
            style: Theme.caption
            color: Theme.text3
            Accessible.ignored: true
        }

        FocusRing {
            target: row
            targetRadius: Theme.rRow
            anchors.margins: Theme.focusGap
            anchors.leftMargin: 6
            anchors.rightMargin: 6
        }
    }
}
