import QtQuick
import QtQuick.Templates as T
import Quillon

/// A folder in the sidebar.
T.ItemDelegate {
    id: row

    required property int index
    required property string key
    required property string name
    required property string path
    required property int tint
    required property string symbol
    required property string caption
    required property bool isTrouble
    required property bool isMissing
    required property string badgeKind
    required property string badgeText
    required property string badgeIcon
    required property string description
    readonly property bool isSelected: ListView.isCurrentItem
    readonly property bool isTarget: ListView.view && ListView.view.ruleTarget === index
    readonly property int radius: Theme.rRow

    signal dragBegun
    /// Places are those of its list.
    signal dragMoved(real x, real y)
    signal dragDropped
    signal dragCancelled

    height: Theme.rowSidebar
    focusPolicy: isSelected || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
    hoverEnabled: true

    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: description
    Accessible.selectable: true
    Accessible.selected: isSelected
    Accessible.onPressAction: App.folders.select(key)

    onClicked: App.folders.select(key)

    // It waits for another folder: till then nobody is told of it.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    function moveBy(offset) {
        App.folders.moveBy(key, offset);
        focusReason = Qt.TabFocusReason;
    }

    function openMenu() {
        ListView.view.openMenu(row, width / 2, height);
    }

    Keys.onUpPressed: event => event.modifiers & Qt.AltModifier ? moveBy(-1) : ListView.view.go(index - 1)
    Keys.onDownPressed: event => event.modifiers & Qt.AltModifier ? moveBy(1) : ListView.view.go(index + 1)
    Keys.onDeletePressed: App.folders.remove(key)
    Keys.onPressed: event => {
        const isMenu = Keystroke.isMenu(event);
        event.accepted = isMenu || event.key === Qt.Key_Home || event.key === Qt.Key_End;
        if (isMenu)
            openMenu();
        else if (event.accepted)
            ListView.view.go(event.key === Qt.Key_Home ? 0 : ListView.view.count - 1);
    }

    background: Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 10
        anchors.rightMargin: 11
        radius: row.radius
        color: row.isTarget ? Theme.accentSoft : row.isSelected ? Theme.selected : row.hovered ? Theme.hover : "transparent"
        border.width: row.isTarget ? 2 : row.isSelected ? 1 : 0
        border.color: row.isTarget ? Theme.accent : Theme.line

        Shadow {
            elevation: row.isSelected && !row.isTarget ? 1 : 0
        }
    }

    FolderTile {
        id: tile
        anchors.left: parent.left
        anchors.leftMargin: Theme.s5
        anchors.verticalCenter: parent.verticalCenter
        size: 26
        tint: row.tint
        symbol: row.symbol
        opacity: row.isMissing ? 0.55 : 1
    }

    Label {
        id: nameLabel
        anchors.left: tile.right
        anchors.leftMargin: 10
        anchors.right: badge.left
        anchors.rightMargin: Theme.s2
        anchors.bottom: parent.verticalCenter
        anchors.bottomMargin: -3
        text: row.name
        style: row.isSelected ? Theme.bodyStrong : Theme.bodyMedium
        showsTip: false // the row's says more
        Accessible.ignored: true
    }

    Label {
        anchors.left: nameLabel.left
        anchors.right: nameLabel.right
        anchors.top: parent.verticalCenter
        anchors.topMargin: 2
        text: row.isTarget ? qsTr("Copy “%1” here").arg(row.ListView.view.ruleName) : row.caption
        style: Theme.microPlain
        color: row.isTrouble && !row.isTarget ? Theme.warn : Theme.text2
        Accessible.ignored: true
    }

    Badge {
        id: badge
        visible: row.badgeKind !== ""
        width: visible ? implicitWidth : 0
        anchors.right: parent.right
        anchors.rightMargin: Theme.s5 + 1
        anchors.verticalCenter: parent.verticalCenter
        kind: row.badgeKind
        text: row.badgeText
        iconName: row.badgeIcon
        Accessible.ignored: true
    }

    FocusRing {
        target: row
        anchors.leftMargin: 10 - distance
        anchors.rightMargin: 11 - distance
        anchors.topMargin: -1
        anchors.bottomMargin: -1
    }

    TipArea {
        anchors.fill: parent
        text: pointer.pressed || row.ListView.view.hasMenu ? "" : row.path
    }

    MouseArea {
        id: pointer

        property real startY: 0
        property bool isDragging: false

        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        preventStealing: true
        onPressed: mouse => {
            startY = mouse.y;
            if (mouse.button === Qt.RightButton)
                row.ListView.view.openMenu(row, mouse.x, mouse.y);
        }
        onPositionChanged: mouse => {
            if (!(mouse.buttons & Qt.LeftButton))
                return;
            if (!isDragging && Math.abs(mouse.y - startY) > Qt.styleHints.startDragDistance) {
                isDragging = true;
                row.dragBegun();
            }
            if (!isDragging)
                return;
            const place = mapToItem(row.ListView.view, mouse.x, mouse.y);
            row.dragMoved(place.x, place.y);
        }
        onReleased: mouse => {
            if (isDragging)
                row.dragDropped();
            else if (mouse.button === Qt.LeftButton) {
                row.forceActiveFocus(Qt.MouseFocusReason);
                App.folders.select(row.key);
            }
            isDragging = false;
        }
        onCanceled: {
            isDragging = false;
            row.dragCancelled();
        }
    }
}
