import QtQuick
import QtQuick.Templates as T
import Quillon

/// One entry of the activity log: what happened to which file, and when. Enter asks to reveal it,
/// Ctrl+Z to undo it. Its buttons are stops of the Tab key while the row has the focus.
T.ItemDelegate {
    id: row

    property string fileName
    property string kind: "other"
    property string secondLine
    property string timeText
    /// As it is read aloud, where that is longer.
    property string spokenTime: timeText
    property bool canReveal: true
    property bool canUndo: false
    /// It is being taken back.
    property bool undoing: false
    property bool isError: false
    /// Reveal and Undo as icons.
    property bool compact: false
    readonly property int tileSize: 32
    /// Shown in a column of its own when there is one.
    property string folderName
    property color folderColor: Theme.text3
    readonly property int folderColumn: Theme.scaled(120)
    readonly property int timeColumn: Theme.scaled(36)
    /// Of the rows of a list, the current one alone is a stop of the Tab key.
    property bool isTabStop: !ListView.view || ListView.isCurrentItem

    readonly property bool focusWithin: activeFocus || buttons.activeFocus

    signal revealAsked
    signal undoAsked

    implicitHeight: Theme.rowActivity
    implicitWidth: 400
    focusPolicy: isTabStop || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
    hoverEnabled: false

    Accessible.role: Accessible.ListItem
    Accessible.name: fileName
    Accessible.description: [secondLine, folderName, spokenTime].filter(Boolean).join(", ")
    Accessible.focusable: true
    Accessible.onPressAction: askToReveal()

    // The window's own key takes back the newest entry, whichever row that is.
    Keys.onShortcutOverride: event => event.accepted = event.matches(StandardKey.Undo)
    Keys.onPressed: event => {
        event.accepted = true;
        if (Keystroke.isMenu(event))
            menu.open(name.x, height);
        else if (Keystroke.isEnter(event))
            askToReveal();
        else if (event.matches(StandardKey.Undo)) {
            if (!Keystroke.isHeld(event))
                askToUndo();
        } else
            event.accepted = false;
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: eventPoint => menu.open(eventPoint.position.x, eventPoint.position.y)
    }

    // Made when it is first asked for, and not for each of many rows.
    Loader {
        id: menu
        active: false
        sourceComponent: Menu {
            MenuItem {
                text: qsTr("Reveal")
                iconName: "document-open-folder"
                shortcutText: qsTr("Enter")
                enabled: row.canReveal
                onTriggered: row.askToReveal()
            }

            MenuItem {
                text: qsTr("Undo")
                iconName: "edit-undo"
                shortcutText: "Ctrl+Z"
                enabled: row.canUndo && !row.undoing
                onTriggered: row.askToUndo()
            }
        }

        function open(x, y) {
            active = true;
            item.popup(row, x, y);
        }
    }

    function askToReveal() {
        if (canReveal)
            revealAsked();
    }

    function askToUndo() {
        if (canUndo && !undoing)
            undoAsked();
    }

    Tile {
        id: errorTile
        visible: row.isError
        anchors.left: parent.left
        anchors.leftMargin: 15
        anchors.verticalCenter: parent.verticalCenter
        size: row.tileSize
        color: Theme.errorSoft
        glyph: "alert"
        iconColor: Theme.error
    }

    FileTile {
        visible: !row.isError
        anchors.fill: errorTile
        size: row.tileSize
        fileName: row.fileName
        kind: row.kind
    }

    Label {
        id: name
        anchors.left: errorTile.right
        anchors.leftMargin: Theme.s3
        anchors.right: folder.left
        anchors.rightMargin: Theme.s3
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
        style: Theme.caption
        color: row.isError ? Theme.error : Theme.text2
        Accessible.ignored: true
    }

    Item {
        id: folder
        visible: row.folderName !== ""
        width: visible ? row.folderColumn : 0
        height: parent.height
        anchors.right: time.left

        Rectangle {
            id: dot
            width: 8
            height: 8
            radius: 2
            color: row.folderColor
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
        }

        Label {
            anchors.left: dot.right
            anchors.leftMargin: 6
            anchors.right: parent.right
            anchors.rightMargin: Theme.s2
            anchors.verticalCenter: parent.verticalCenter
            text: row.folderName
            style: Theme.caption
            color: Theme.text2
            Accessible.ignored: true
        }
    }

    Label {
        id: time
        width: Math.max(row.timeColumn, implicitWidth)
        anchors.right: buttons.left
        anchors.rightMargin: row.folderName === "" ? Theme.s3 : Theme.s5 + 1
        anchors.verticalCenter: parent.verticalCenter
        text: row.timeText
        style: Theme.caption
        color: Theme.text3
        horizontalAlignment: Text.AlignRight
        Accessible.ignored: true
    }

    Loader {
        id: buttons
        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        sourceComponent: row.compact ? asIcons : asWords
    }

    // The place of a button that is not there stays empty.
    Component {
        id: asWords

        Row {
            Button {
                kind: "link"
                small: true
                text: qsTr("Reveal")
                opacity: row.canReveal ? 1 : 0
                enabled: row.canReveal
                focusPolicy: row.focusWithin ? Qt.StrongFocus : Qt.ClickFocus
                Accessible.name: qsTr("Reveal %1").arg(row.fileName)
                Accessible.ignored: !row.canReveal
                onClicked: row.askToReveal()
            }

            Button {
                kind: "link"
                small: true
                text: qsTr("Undo")
                busy: row.undoing
                opacity: row.canUndo ? 1 : 0
                enabled: row.canUndo
                focusPolicy: row.focusWithin ? Qt.StrongFocus : Qt.ClickFocus
                Accessible.name: qsTr("Undo %1").arg(row.fileName)
                Accessible.ignored: !row.canUndo
                onClicked: row.askToUndo()
            }
        }
    }

    Component {
        id: asIcons

        Row {
            IconButton {
                kind: "quiet"
                iconName: "document-open-folder"
                label: qsTr("Reveal")
                opacity: row.canReveal ? 1 : 0
                enabled: row.canReveal
                focusPolicy: row.focusWithin ? Qt.StrongFocus : Qt.ClickFocus
                Accessible.name: qsTr("Reveal %1").arg(row.fileName)
                Accessible.ignored: !row.canReveal
                onClicked: row.askToReveal()
            }

            IconButton {
                kind: "quiet"
                iconName: "edit-undo"
                label: qsTr("Undo")
                busy: row.undoing
                opacity: row.canUndo ? 1 : 0
                enabled: row.canUndo
                focusPolicy: row.focusWithin ? Qt.StrongFocus : Qt.ClickFocus
                Accessible.name: qsTr("Undo %1").arg(row.fileName)
                Accessible.ignored: !row.canUndo
                onClicked: row.askToUndo()
            }
        }
    }

    FocusRing {
        target: row
        targetRadius: Theme.rControl
        anchors.margins: Theme.focusGap
    }
}
