import QtQuick
import Quillon

/// What the popover of the tray item holds. Fills its parent.
FocusScope {
    id: content

    readonly property bool isEmpty: !App.popover.hasFolders

    implicitWidth: 340
    implicitHeight: 460
    Accessible.role: Accessible.Dialog
    Accessible.name: qsTr("Quillon")
    Accessible.description: App.popover.statusText

    Keys.onEscapePressed: App.popover.close()

    Shortcut {
        sequence: "Ctrl+R"
        autoRepeat: false
        onActivated: folders.runCurrent()
    }

    Shortcut {
        sequence: "Ctrl+Shift+R"
        autoRepeat: false
        onActivated: App.popover.runAll()
    }

    Shortcut {
        sequence: "Ctrl+."
        autoRepeat: false
        onActivated: App.popover.togglePaused()
    }

    Shortcut {
        sequence: "Ctrl+W"
        onActivated: App.popover.close()
    }

    Shortcut {
        sequences: [StandardKey.Quit]
        onActivated: Qt.quit()
    }

    Shortcut {
        sequence: "Ctrl+,"
        onActivated: App.popover.openSettings()
    }

    Item {
        id: header
        width: parent.width
        height: Theme.scaled(56)

        Tile {
            id: mark
            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            size: 28
            radius: Theme.rControl
            color: Theme.accent
            glyph: "guard"
            iconColor: Theme.onAccent
        }

        Label {
            anchors.left: mark.right
            anchors.leftMargin: 10
            anchors.bottom: parent.verticalCenter
            text: qsTr("Quillon")
            style: Theme.bodyStrong
            Accessible.role: Accessible.Heading
        }

        Glyph {
            id: alert
            visible: App.popover.isTrouble
            anchors.left: mark.right
            anchors.leftMargin: 10
            anchors.verticalCenter: status.verticalCenter
            name: "alert"
            size: 12
            color: Theme.warnIcon
        }

        Label {
            id: status
            anchors.left: alert.visible ? alert.right : mark.right
            anchors.leftMargin: alert.visible ? 5 : 10
            anchors.right: settings.left
            anchors.rightMargin: Theme.s2
            anchors.top: parent.verticalCenter
            text: App.popover.statusText
            style: Theme.caption
            color: App.popover.isTrouble ? Theme.warn : Theme.text2
        }

        IconButton {
            id: settings
            anchors.right: parent.right
            anchors.rightMargin: 13
            anchors.verticalCenter: parent.verticalCenter
            kind: "quiet"
            iconName: "configure"
            label: qsTr("Settings")
            shortcutText: "Ctrl+,"
            onClicked: App.popover.openSettings()
        }
    }

    Divider {
        id: headerLine
        width: parent.width
        anchors.top: header.bottom
    }

    PopoverFolders {
        id: folders
        anchors.top: headerLine.bottom
        anchors.bottom: activityLine.top
        width: parent.width
        visible: !content.isEmpty
        focus: !content.isEmpty
    }

    ScrollBar {
        flickable: folders
    }

    EmptyState {
        visible: content.isEmpty
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Theme.s6
        anchors.verticalCenter: folders.verticalCenter
        title: qsTr("No folders yet")

        Button {
            kind: "primary"
            iconName: "list-add"
            text: qsTr("Add Folder")
            focus: content.isEmpty
            onClicked: {
                App.popover.openMainWindow();
                App.folders.chooseNew();
            }
        }
    }

    Divider {
        id: activityLine
        width: parent.width
        anchors.bottom: activity.top
    }

    Item {
        id: activity
        width: parent.width
        anchors.bottom: footerLine.top
        height: Theme.scaled(39) + 3 * Theme.rowPopover

        Label {
            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: seeAll.verticalCenter
            text: qsTr("Recent activity")
            style: Theme.captionStrong
            color: Theme.text2
            Accessible.role: Accessible.Heading
        }

        Button {
            id: seeAll
            visible: App.popover.hasEntries
            anchors.right: parent.right
            anchors.rightMargin: 6
            y: 6
            kind: "link"
            small: true
            text: qsTr("See all")
            onClicked: {
                App.popover.openMainWindow();
                App.history.open("");
            }
        }

        Label {
            visible: !App.popover.hasEntries
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.margins: 14
            anchors.top: seeAll.bottom
            anchors.topMargin: Theme.s2
            text: qsTr("Nothing tidied yet. New files will show up here.")
            style: Theme.caption
            color: Theme.text2
            wrapMode: Text.Wrap
        }

        PopoverEntries {
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 7
            width: parent.width
            height: 3 * Theme.rowPopover
        }
    }

    Divider {
        id: footerLine
        width: parent.width
        anchors.bottom: footer.top
    }

    Item {
        id: footer
        width: parent.width
        height: Theme.scaled(52)
        anchors.bottom: parent.bottom

        Button {
            anchors.left: parent.left
            anchors.leftMargin: Theme.s3
            anchors.verticalCenter: parent.verticalCenter
            iconName: App.popover.isPaused ? "media-playback-start" : "media-playback-pause"
            text: App.popover.isPaused ? qsTr("Resume") : qsTr("Pause")
            shortcutText: "Ctrl+."
            onClicked: App.popover.togglePaused()
        }

        Button {
            anchors.right: parent.right
            anchors.rightMargin: Theme.s3
            anchors.verticalCenter: parent.verticalCenter
            kind: content.isEmpty ? "secondary" : "primary"
            text: qsTr("Open Quillon")
            onClicked: App.popover.openMainWindow()
        }
    }
}
