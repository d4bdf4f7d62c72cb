import QtQuick
import QtQuick.Layouts
import Quillon

/// The whole activity log by day: searched, filtered, and taken back.
Sheet {
    id: sheet

    title: qsTr("Activity")
    caption: App.history.caption
    sheetWidth: 900
    sheetHeight: 644
    bodyMargin: 0
    primary: doneButton
    tile: Component {
        Tile {
            iconName: "view-history"
        }
    }
    onCloseRequested: App.sheets.close()
    Component.onCompleted: list.forceActiveFocus(Qt.PopupFocusReason)

    function undoNewest() {
        const entry = App.history.newestUndoable();
        if (entry !== "")
            App.entries.undo(entry);
    }

    Shortcut {
        sequences: [StandardKey.Find]
        onActivated: {
            search.input.forceActiveFocus(Qt.ShortcutFocusReason);
            search.selectAll();
        }
    }

    Item {
        anchors.fill: parent
        Keys.onPressed: event => {
            event.accepted = event.matches(StandardKey.Undo);
            if (event.accepted && !Keystroke.isHeld(event))
                sheet.undoNewest();
        }

        RowLayout {
            id: filters
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: Theme.s6
            anchors.rightMargin: Theme.s6
            y: -4
            spacing: Theme.s2

            Field {
                id: search
                Layout.preferredWidth: 260
                iconName: "search"
                placeholder: qsTr("File, rule or folder")
                label: qsTr("Search the activity")
                text: App.history.searchText
                onEdited: text => App.history.searchText = text
                Keys.onDownPressed: list.forceActiveFocus(Qt.TabFocusReason)
            }

            PillPicker {
                Layout.preferredWidth: 140
                label: qsTr("Folder")
                model: App.history.folderNames
                currentIndex: App.history.folderIndex
                onActivated: index => App.history.folderIndex = index
            }

            Item {
                Layout.fillWidth: true
            }

            Segments {
                label: qsTr("Show")
                model: [qsTr("Everything"), qsTr("Changes"), qsTr("Errors")]
                errorCounts: ["", "", App.history.errorCount]
                currentIndex: App.history.outcome
                onActivated: index => App.history.outcome = index
            }
        }

        Divider {
            id: line
            width: parent.width
            y: filters.y + filters.height + 14
        }

        HistoryList {
            id: list
            // Beside the outline of the sheet.
            anchors.leftMargin: 1
            anchors.rightMargin: 1
            anchors.top: line.bottom
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            focus: true
        }

        ScrollBar {
            flickable: list
        }

        EmptyState {
            visible: list.count === 0
            anchors.centerIn: list
            width: list.width - 2 * Theme.s6
            title: App.history.isLogEmpty ? qsTr("Nothing here yet.") : qsTr("No entries match.")
            drawing: Component {
                Tile {
                    size: 44
                    iconName: App.history.isLogEmpty ? "view-history" : "search"
                }
            }

            Button {
                visible: !App.history.isLogEmpty
                text: qsTr("Clear Filter")
                onClicked: {
                    App.history.clearFilter();
                    list.forceActiveFocus(Qt.TabFocusReason);
                }
            }
        }
    }

    note: Label {
        Layout.fillWidth: true
        text: qsTr("Undo puts a file back where it was. If the name is taken, Quillon adds a number.")
        style: Theme.caption
        color: Theme.text2
        wrapMode: Text.Wrap
    }

    footer: Button {
        id: doneButton
        kind: "primary"
        leftPadding: 21
        rightPadding: 21
        text: qsTr("Done")
        onClicked: sheet.closeRequested()
    }
}
