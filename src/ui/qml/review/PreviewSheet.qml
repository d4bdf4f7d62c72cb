import QtQuick
import QtQuick.Layouts
import Quillon

/// What tidying a folder now would do, before anything is touched.
Sheet {
    id: sheet

    title: App.preview.title
    caption: qsTr("Nothing has been touched. This is only a preview.")
    sheetWidth: 860
    sheetHeight: 620
    primary: runButton
    tile: Component {
        FolderTile {
            tint: App.preview.tint
            symbol: App.preview.symbol
        }
    }
    onCloseRequested: App.sheets.close()
    Component.onCompleted: list.forceActiveFocus(Qt.PopupFocusReason)

    Shortcut {
        sequences: [StandardKey.Find]
        onActivated: {
            filter.input.forceActiveFocus(Qt.ShortcutFocusReason);
            filter.selectAll();
        }
    }

    Item {
        anchors.fill: parent

        Segments {
            id: fates
            anchors.left: parent.left
            label: qsTr("Show")
            model: App.preview.fates
            currentIndex: App.preview.fate
            onActivated: index => App.preview.fate = index
        }

        Field {
            id: filter
            anchors.right: parent.right
            width: 200
            inRow: true
            iconName: "search"
            placeholder: qsTr("Filter files")
            label: qsTr("Filter files")
            onEdited: text => App.preview.filterText = text
            Keys.onDownPressed: list.forceActiveFocus(Qt.TabFocusReason)
        }

        RowLayout {
            id: headings
            opacity: list.count > 0 ? 1 : 0
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: fates.bottom
            anchors.topMargin: Theme.s3
            spacing: 0

            Label {
                Layout.leftMargin: list.x + list.fileColumn
                Layout.preferredWidth: list.ruleColumn - list.fileColumn
                text: qsTr("File")
                style: Theme.caption
                color: Theme.text2
            }

            Label {
                Layout.preferredWidth: list.actionColumn - list.ruleColumn
                visible: App.preview.fate === 0
                text: qsTr("Rule")
                style: Theme.caption
                color: Theme.text2
            }

            Label {
                Layout.fillWidth: true
                visible: App.preview.fate === 0
                text: qsTr("What happens")
                style: Theme.caption
                color: Theme.text2
            }
        }

        // The card goes on beneath the footer while there is more of the list.
        Item {
            id: place
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: headings.bottom
            anchors.topMargin: 7
            anchors.bottom: parent.bottom
            clip: true

            Card {
                width: parent.width
                height: Math.max(list.rowHeight, Math.min(place.height + radius, list.contentHeight + 2))
                visible: list.count > 0
                elevation: 0
            }

            PreviewList {
                id: list
                anchors.fill: parent
                anchors.margins: 1
                anchors.bottomMargin: 0
                bottomMargin: Theme.s3
                visible: count > 0
                focus: true
            }

            ScrollBar {
                flickable: list
            }

            LookState {
                anchors.fill: parent
                isLooking: App.preview.isLooking
                lookingText: App.preview.lookingText
                hasFailed: App.preview.hasFailed
                emptyText: App.preview.emptyText
                onAgainAsked: {
                    list.forceActiveFocus(Qt.OtherFocusReason);
                    App.preview.look();
                }
            }
        }
    }

    note: Label {
        Layout.fillWidth: true
        text: qsTr("Files that changed in the last few seconds are left to settle first.")
        style: Theme.caption
        color: Theme.text2
        wrapMode: Text.Wrap
    }

    footer: [
        Button {
            text: qsTr("Close")
            onClicked: sheet.closeRequested()
        },
        Button {
            id: runButton
            kind: "primary"
            iconName: "media-playback-start"
            text: qsTr("Run Now")
            enabled: App.preview.canRun
            disabledReason: App.preview.whyNotRun
            onClicked: {
                // Another folder may have been selected meanwhile, from the popover.
                const folder = App.preview.folderID;
                App.sheets.close();
                App.page.runFolder(folder);
            }
        }
    ]
}
