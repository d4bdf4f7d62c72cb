import QtQuick
import Quillon

/// What the folder is called, where it is, when it is tidied, and what can be done with it now.
FocusScope {
    id: header

    property real roomForButtons: 0
    property bool isCompact: false

    height: secondRow.y + secondRow.height + 20

    function takeFocus() {
        timing.forceActiveFocus(Qt.TabFocusReason);
        return true;
    }

    function openTiming() {
        takeFocus();
        timing.popup.open();
    }

    function openMenu() {
        menu.active = true;
        menu.item.popup(more, more.width - menu.item.implicitWidth, more.height + 4);
    }

    FolderTile {
        id: tile
        anchors.left: parent.left
        y: Theme.s4
        size: 44
        tint: App.page.tint
        symbol: App.page.symbol
    }

    Label {
        id: name
        anchors.left: tile.right
        anchors.leftMargin: 14
        anchors.right: dobbin.left
        anchors.rightMargin: Theme.s3
        anchors.top: tile.top
        anchors.topMargin: 1
        text: App.page.name
        style: Theme.title
        Accessible.role: Accessible.Heading
    }

    Label {
        anchors.left: name.left
        anchors.right: name.right
        anchors.top: name.bottom
        text: App.page.details
        style: Theme.caption
        color: Theme.text2
    }

    Button {
        id: dobbin
        anchors.right: parent.right
        anchors.rightMargin: header.roomForButtons
        y: Theme.s4
        kind: "secondary"
        glyph: "horseshoe"
        text: qsTr("Dobbin")
        shortcutText: "Ctrl+J"
        toolTip: App.chat.isOpen ? qsTr("Close Dobbin") : qsTr("Ask Dobbin")
        fullInk: Theme.dobbin
        onClicked: App.chat.toggle()
        Accessible.description: App.chat.isOpen ? qsTr("Open") : ""

        background: ButtonFill {
            kind: "secondary"
            radius: Theme.rControl
            hovered: dobbin.hovered
            pressed: dobbin.down
            color: App.chat.isOpen ? Theme.dobbinSoft : hovered || pressed ? Theme.hover : Theme.card
            border.color: App.chat.isOpen ? Theme.dobbinLine : Theme.line
        }
    }

    Item {
        id: secondRow
        anchors.left: parent.left
        anchors.right: parent.right
        y: Math.max(tile.y + tile.height, name.y + name.height + Theme.s4) + 14
        height: wraps ? 2 * Theme.control + Theme.s2 : Theme.control

        readonly property bool wraps: (header.isCompact ? 0 : timingLabel.width) + timing.width + tools.width + Theme.s6 > width

        Label {
            id: timingLabel
            anchors.left: parent.left
            height: Theme.control
            visible: !header.isCompact
            text: qsTr("When to tidy")
            style: Theme.caption
            color: Theme.text2
            Accessible.ignored: true
        }

        PillPicker {
            id: timing
            anchors.left: header.isCompact ? parent.left : timingLabel.right
            anchors.leftMargin: header.isCompact ? 0 : 18
            label: qsTr("When to tidy")
            iconName: "clock"
            model: App.page.timings
            currentIndex: App.page.timing
            onActivated: index => App.page.timing = index
        }

        Row {
            id: tools
            anchors.right: parent.right
            y: secondRow.wraps ? Theme.control + Theme.s2 : 0
            spacing: Theme.s2

            TwoPartButton {
                firstIcon: "view-visible"
                firstLabel: qsTr("Preview %1").arg(App.page.name)
                firstShortcut: "Ctrl+P"
                firstEnabled: App.page.canRun
                secondIcon: "media-playback-start"
                secondLabel: qsTr("Run %1 now").arg(App.page.name)
                secondShortcut: "Ctrl+R"
                secondEnabled: App.page.canRun
                secondBusy: App.page.isRunning
                disabledReason: App.page.whyNotRun
                onFirstClicked: App.preview.open(App.page.folderID)
                onSecondClicked: App.page.run()
            }

            Button {
                visible: !header.isCompact
                iconName: "edit-clear-all"
                text: qsTr("Clean Up")
                shortcutText: "Ctrl+K"
                toolTip: qsTr("A one-off tidy")
                enabled: App.page.canRun
                disabledReason: App.page.whyNotRun
                onClicked: App.cleanup.open(App.page.folderID)
            }

            IconButton {
                visible: header.isCompact
                iconName: "edit-clear-all"
                label: qsTr("Clean Up")
                shortcutText: "Ctrl+K"
                enabled: App.page.canRun
                disabledReason: App.page.whyNotRun
                onClicked: App.cleanup.open(App.page.folderID)
            }

            IconButton {
                id: more
                glyph: "more"
                label: qsTr("More for %1").arg(App.page.name)
                shortcutText: qsTr("Alt+Enter")
                onClicked: header.openMenu()
            }
        }
    }

    Loader {
        id: menu
        active: false
        sourceComponent: FolderMenu {}
    }
}
