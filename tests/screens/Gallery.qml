import QtQuick
import Quillon

/// Every control in its states, to be held against the design.
Rectangle {
    id: gallery

    color: Theme.bg
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    component Heading: Label {
        style: Theme.microStrong
        color: Theme.text2
    }

    Column {
        x: 32
        y: 28
        width: 470
        spacing: Theme.s2

        Heading {
            text: "Buttons"
        }
        Row {
            spacing: Theme.s2
            Button {
                kind: "primary"
                text: "New Rule"
            }
            Button {
                kind: "primary"
                text: "New Rule"
                iconName: "list-add"
            }
            Button {
                id: focused
                kind: "primary"
                text: "New Rule"
                focus: true
            }
            Button {
                kind: "primary"
                text: "New Rule"
                enabled: false
                disabledReason: "Choose a folder first."
            }
        }
        Row {
            spacing: Theme.s2
            Button {
                text: "Presets"
            }
            Button {
                text: "Presets"
                enabled: false
            }
            Button {
                text: "Clean Up"
                iconName: "edit-clear-all"
            }
            Button {
                text: "Clean Up"
                iconName: "edit-clear-all"
                busy: true
            }
            Button {
                text: "Save"
                busy: true
            }
        }
        Row {
            spacing: Theme.s2
            Button {
                kind: "dobbin"
                text: "Do it"
            }
            Button {
                anchors.verticalCenter: parent.verticalCenter
                kind: "link"
                text: "See all"
                opensMore: true
            }
            Button {
                kind: "quiet"
                text: "Skip"
            }
            Button {
                kind: "destructive"
                text: "Delete Rule"
            }
            TwoPartButton {
                firstIcon: "view-visible"
                firstLabel: "Preview Downloads"
                firstShortcut: "Ctrl+P"
                secondIcon: "media-playback-start"
                secondLabel: "Run Downloads now"
            }
            IconButton {
                glyph: "more"
                label: "More"
            }
            IconButton {
                anchors.verticalCenter: parent.verticalCenter
                kind: "quiet"
                iconName: "list-remove"
                label: "Remove"
            }
        }
        Heading {
            topPadding: Theme.s3
            text: "Switch, tick box, segments"
        }
        Row {
            spacing: 10
            Repeater {
                model: [[true, true], [false, true], [true, false]]
                Switch {
                    required property var modelData
                    anchors.verticalCenter: parent ? parent.verticalCenter : undefined
                    checked: modelData[0]
                    enabled: modelData[1]
                    label: "File invoices"
                }
            }
            Repeater {
                model: [Qt.Checked, Qt.PartiallyChecked, Qt.Unchecked]
                TickBox {
                    required property int modelData
                    anchors.verticalCenter: parent ? parent.verticalCenter : undefined
                    checkState: modelData
                    label: "All files"
                }
            }
            Segments {
                label: "Match"
                model: ["All", "Any", "None"]
            }
            DayStepper {
                anchors.verticalCenter: parent.verticalCenter
                value: 30
                label: "Days, Old installers"
            }
        }
        Heading {
            topPadding: Theme.s3
            text: "Pill pickers and fields"
        }
        Row {
            spacing: Theme.s2
            PillPicker {
                width: 150
                label: "Attribute"
                model: ["Dobbin says it", "Name", "Kind"]
            }
            PillPicker {
                label: "Operator"
                model: ["older than (days)", "before"]
            }
            PillPicker {
                label: "When to tidy"
                iconName: "clock"
                model: ["Once a day"]
            }
        }
        Row {
            spacing: Theme.s2
            Field {
                width: 150
                label: "Value"
                placeholder: "a receipt or invoice"
            }
            Field {
                width: 150
                label: "Search"
                iconName: "search"
                text: "amazon.com"
            }
            Field {
                width: 150
                label: "Age"
                text: "30 days"
                errorText: "Use a whole number"
            }
        }
        TextBox {
            width: 458
            label: "Script"
            monospaced: true
            minimumLines: 2
            text: "mv \"$1\" ~/Sorted\nexit 0"
        }
        TagDots {
            current: "green"
        }
        Heading {
            topPadding: Theme.s3
            text: "Badges, folder tints, kinds of files"
        }
        Row {
            spacing: Theme.s2
            Badge {
                kind: "error"
                text: "2"
            }
            Badge {
                kind: "error"
                text: "99+"
            }
            Badge {
                kind: "warn"
                iconName: "lock"
            }
            Badge {
                kind: "warn"
                text: "!"
            }
            Badge {
                text: "Off"
            }
            Badge {
                kind: "dobbin"
                glyph: "horseshoe"
                text: "Dobbin"
            }
            Badge {
                kind: "ok"
                glyph: "tick"
                text: "Done"
            }
            Badge {
                kind: "accent"
                text: "Scheduled"
            }
            Badge {
                kind: "warn"
                text: "Can’t be undone"
            }
        }
        Row {
            spacing: Theme.s2
            Repeater {
                model: ["folder", "folder-download", "user-desktop", "folder-documents", "folder-cloud", "document-scan", "drive-removable-media", "no-such-icon"]
                FolderTile {
                    required property int index
                    required property string modelData
                    tint: index
                    symbol: modelData
                    size: index < 4 ? 32 : 44
                }
            }
        }
        Row {
            spacing: Theme.s2
            Repeater {
                model: [["a.pdf", "pdf"], ["a.jpg", "image"], ["a.mp4", "video"], ["a.mp3", "audio"], ["a.docx", "document"], ["a.zip", "archive"], ["a.py", "code"], ["a.bin", "other"], ["Readme", "other"], ["Photos", "folder"]]
                FileTile {
                    required property var modelData
                    fileName: modelData[0]
                    kind: modelData[1]
                }
            }
        }
        Heading {
            topPadding: Theme.s3
            text: "Progress"
        }
        ProgressBar {
            width: 470
            value: 23 / 37
            label: "Tidying Downloads"
        }
        Row {
            spacing: Theme.s2
            Spinner {
                anchors.verticalCenter: parent.verticalCenter
            }
            Label {
                text: "Tidying… 23 of 37 files"
                color: Theme.text2
            }
            Glyph {
                anchors.verticalCenter: parent.verticalCenter
                name: "horseshoe"
                color: Theme.dobbin
            }
            ThinkingDots {
                anchors.verticalCenter: parent.verticalCenter
            }
            Label {
                text: "Dobbin is thinking"
                color: Theme.text2
            }
        }
        Item {
            width: 470
            height: 110
            Toast {
                id: first
                sentence: "Copied “File invoices” to Desktop"
                actionLabel: "Show"
            }
            Toast {
                id: second
                y: 52
                sentence: "“Big videos” deleted"
                actionLabel: "Undo"
            }
        }
        Row {
            spacing: Theme.s3
            Label {
                width: 160
                text: "A name that is much too long for its place"
            }
            Label {
                width: 160
                text: "2026-11-18 Amazon invoice £42.99.pdf"
                elide: Text.ElideMiddle
            }
        }
    }

    Column {
        x: 538
        y: 28
        width: 470
        spacing: Theme.s2

        Heading {
            text: "Cards"
        }
        Repeater {
            model: [["File invoices", "If extension is “pdf” and name contains “invoice”", "Move to Receipts, Tag Green"], ["Sort <photos> & more", "If Dobbin says it's a receipt or invoice", "Rename with Dobbin, Move to Receipts"]]
            Card {
                required property var modelData
                required property int index
                width: 470
                height: sentence.y + sentence.height + 12
                elevation: index === 0 ? 2 : 1
                highlighted: index === 0
                Glyph {
                    x: 10
                    y: 20
                    name: "grip"
                    size: 16
                    color: Theme.text3
                }
                Tile {
                    x: 30
                    y: 12
                    iconName: "edit-copy"
                }
                Label {
                    x: 72
                    y: 12
                    text: modelData[0]
                    style: Theme.bodyStrong
                }
                RuleSummary {
                    id: sentence
                    x: 72
                    y: 31
                    width: 310
                    condition: modelData[1]
                    action: modelData[2]
                }
                IconButton {
                    x: 386
                    y: 15
                    kind: "quiet"
                    glyph: "more"
                    label: "More"
                }
                Switch {
                    x: 420
                    y: 18
                    checked: true
                    label: "File invoices"
                }
            }
        }
        Heading {
            topPadding: Theme.s3
            text: "Banners"
        }
        Banner {
            width: 470
            iconName: "media-playback-pause"
            text: "Paused — nothing runs automatically"
            Button {
                small: true
                text: "Resume"
            }
        }
        Banner {
            width: 470
            glyph: "alert"
            text: "Camera Card can’t be found"
            Button {
                small: true
                text: "Locate…"
            }
            Button {
                small: true
                text: "Remove"
            }
        }
        Banner {
            width: 470
            kind: "error"
            glyph: "alert"
            text: "2 files couldn’t be filed today"
            Button {
                small: true
                text: "Show Errors"
            }
        }
        Heading {
            topPadding: Theme.s3
            text: "Menus"
        }
    }

    Menu {
        id: folderMenu
        closePolicy: Menu.NoAutoClose
        focus: false
        x: 538
        y: 470
        width: 250

        Menu {
            title: "When to tidy"
            iconName: "clock"
            MenuItem {
                text: "As files land"
            }
        }
        MenuItem {
            text: "Include subfolders"
            isChoice: true
            isChosen: true
        }
        MenuItem {
            text: "Only new files"
            isChoice: true
        }
        MenuDivider {}
        Menu {
            title: "Colour"
            iconName: "fill-color"
        }
        MenuItem {
            text: "Import Rules…"
            iconName: "document-import"
        }
        MenuDivider {}
        MenuItem {
            text: "Remove Downloads…"
            iconName: "list-remove"
            destructive: true
        }
    }

    Menu {
        id: ruleMenu
        closePolicy: Menu.NoAutoClose
        focus: false
        x: 808
        y: 470

        MenuItem {
            text: "Edit…"
            iconName: "document-edit"
            shortcutText: "Enter"
        }
        MenuItem {
            text: "Duplicate"
            iconName: "edit-copy"
            shortcutText: "Ctrl+D"
            enabled: false
        }
        MenuDivider {}
        MenuItem {
            text: "Move Down"
            iconName: "go-down"
            shortcutText: "Alt+Down"
        }
    }

    function show() {
        first.show();
        second.show();
        folderMenu.open();
        folderMenu.currentIndex = 4;
        ruleMenu.open();
        focused.forceActiveFocus(Qt.TabFocusReason);
    }

    Component.onCompleted: Qt.callLater(show)
}
