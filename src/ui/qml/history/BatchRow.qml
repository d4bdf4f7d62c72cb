import QtQuick
import QtQuick.Templates as T
import Quillon

/// The head of a batch of entries. Right and Left open and close it, Enter does either, Ctrl+Z asks
/// to take all of it back.
T.ItemDelegate {
    id: row

    property string title
    property string secondLine
    property string timeText
    property string spokenTime: timeText
    property bool canUndo: false
    property bool isOpen: false
    property bool isUndoing: false
    property real progress: 0
    property bool isTabStop: true
    readonly property bool focusWithin: activeFocus || undo.activeFocus

    signal openAsked(bool open)
    signal undoAsked
    signal stopAsked

    implicitHeight: Theme.rowActivity
    focusPolicy: isTabStop || activeFocus ? Qt.StrongFocus : Qt.ClickFocus

    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: [secondLine, spokenTime, isOpen ? qsTr("open") : qsTr("closed")].join(", ")
    Accessible.focusable: true
    Accessible.onPressAction: openAsked(!isOpen)

    Keys.onSpacePressed: openAsked(!isOpen)
    Keys.onRightPressed: openAsked(!mirrored)
    Keys.onLeftPressed: openAsked(mirrored)
    Keys.onPressed: event => {
        const isEnter = Keystroke.isEnter(event);
        event.accepted = isEnter || event.matches(StandardKey.Undo);
        if (isEnter)
            openAsked(!isOpen);
        else if (event.accepted && !Keystroke.isHeld(event) && canUndo && !isUndoing)
            undoAsked();
    }

    TapHandler {
        onTapped: row.openAsked(!row.isOpen)
    }

    Tile {
        id: tile
        anchors.left: parent.left
        anchors.leftMargin: 15
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.accentSoft
        iconName: "edit-clear-all"
        iconColor: Theme.accentOnSoft
    }

    Label {
        id: name
        anchors.left: tile.right
        anchors.leftMargin: Theme.s3
        anchors.bottom: parent.verticalCenter
        anchors.bottomMargin: -1
        anchors.right: time.left
        anchors.rightMargin: Theme.s8
        text: row.title
        style: Theme.bodyMedium
        Accessible.ignored: true
    }

    Glyph {
        anchors.left: name.left
        anchors.leftMargin: name.contentWidth + 6
        anchors.verticalCenter: name.verticalCenter
        name: "chevron"
        size: 10
        color: Theme.text2
        rotation: row.isOpen ? 0 : row.mirrored ? 90 : -90

        Behavior on rotation {
            NumberAnimation {
                duration: Theme.base
                easing.type: Easing.OutCubic
            }
        }
    }

    Label {
        anchors.left: name.left
        anchors.right: time.left
        anchors.rightMargin: Theme.s3
        anchors.top: name.bottom
        text: row.secondLine
        style: Theme.caption
        color: Theme.text2
        Accessible.ignored: true
    }

    Label {
        id: time
        anchors.right: undo.visible ? undo.left : parent.right
        anchors.rightMargin: Theme.s3
        anchors.verticalCenter: parent.verticalCenter
        text: row.timeText
        style: Theme.caption
        color: Theme.text3
        Accessible.ignored: true
    }

    Button {
        id: undo
        anchors.right: parent.right
        anchors.rightMargin: 11
        anchors.verticalCenter: parent.verticalCenter
        visible: row.canUndo || row.isUndoing
        small: true
        iconName: row.isUndoing ? "" : "edit-undo"
        text: row.isUndoing ? qsTr("Stop") : qsTr("Undo All")
        focusPolicy: row.focusWithin ? Qt.StrongFocus : Qt.ClickFocus
        Accessible.name: row.isUndoing ? qsTr("Stop undoing %1").arg(row.title) : qsTr("Undo %1").arg(row.title)
        onClicked: row.isUndoing ? row.stopAsked() : row.undoAsked()
    }

    ProgressBar {
        visible: row.isUndoing
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 1
        anchors.bottom: parent.bottom
        value: row.progress
        label: row.secondLine
    }

    FocusRing {
        target: row
        targetRadius: Theme.rControl
        anchors.margins: Theme.focusGap
    }
}
