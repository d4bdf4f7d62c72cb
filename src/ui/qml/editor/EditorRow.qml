import QtQuick
import Quillon

/// One row of a list that is being edited: a grip, what is edited, and a button that removes it.
FocusScope {
    id: row

    required property int index
    required property string spoken
    property Item list
    property string joiner
    property int indent: 34
    /// Whether the grip lies in the sheet's margin, because a word takes its place.
    property bool gripInMargin: false
    default property alias content: slot.data
    property Item first
    property Item valueItem

    readonly property bool isDragged: grip.isDragged
    readonly property real scrolledTo: list && list.scroller ? list.scroller.contentY : 0
    readonly property real draggedTo: grabbedAt + grip.distance + scrolledTo - grabbedScroll
    property real grabbedAt: 0
    property real grabbedScroll: 0
    property int grabbedRow: 0

    width: list ? list.width : implicitWidth
    implicitHeight: Math.max(Theme.controlInRow, slot.childrenRect.height)
    z: isDragged ? 1 : 0
    opacity: isDragged ? 0.96 : 1
    Accessible.role: Accessible.ListItem
    Accessible.name: spoken

    function focusPart(part) {
        const item = part === "value" && valueItem ? valueItem : first;
        if (item)
            item.forceActiveFocus(Qt.TabFocusReason);
    }

    /// Comes before or behind other rows as it is dragged past them.
    function follow() {
        const target = list.rowAt(draggedTo + height / 2);
        if (target !== index)
            list.rows.move(index, target);
    }

    transform: Translate {
        y: row.isDragged ? row.draggedTo - row.y : 0
    }

    // A held key must not go on with the next row.
    Keys.onDeletePressed: event => {
        if (!Keystroke.isHeld(event))
            row.list.removeRow(row.index);
    }
    Keys.onEscapePressed: event => {
        event.accepted = row.isDragged;
        if (row.isDragged) {
            row.list.rows.move(row.index, row.grabbedRow);
            grip.drop();
        }
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: -6
        visible: row.isDragged
        radius: Theme.rBanner
        color: Theme.card
        border.width: 1
        border.color: Theme.line

        Shadow {
            elevation: 2
        }
    }

    EditorGrip {
        id: grip
        visible: row.list.rows.count > 1
        anchors.left: parent.left
        anchors.leftMargin: row.gripInMargin ? -18 : 0
        spoken: row.spoken
        onGrabbed: {
            row.list.isDragging = true;
            row.grabbedAt = row.y;
            row.grabbedRow = row.index;
            row.grabbedScroll = row.scrolledTo;
        }
        onMoved: {
            row.follow();
            const scroller = row.list.scroller;
            row.list.edgeScroll.near(scroller.mapFromItem(null, pointer.x, pointer.y).y, row.follow);
        }
        onReleased: {
            row.list.isDragging = false;
            row.list.edgeScroll.end();
        }
    }

    Label {
        anchors.left: parent.left
        height: Theme.controlInRow
        text: row.joiner
        color: Theme.text3
    }

    Item {
        id: slot
        anchors.left: parent.left
        anchors.leftMargin: row.indent
        anchors.right: removeButton.left
        anchors.rightMargin: Theme.s2
    }

    IconButton {
        id: removeButton
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: (Theme.controlInRow - height) / 2
        kind: "quiet"
        iconName: "list-remove"
        iconColor: Theme.text1
        label: qsTr("Remove %1").arg(row.spoken)
        shortcutText: qsTr("Del")
        onClicked: row.list.removeRow(row.index)
    }
}
