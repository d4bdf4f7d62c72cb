import QtQuick
import Quillon

/// The folders. Arrows select, Alt with them reorders, Delete removes.
ListView {
    id: list

    /// The row that a rule is dragged over, and the rule's name.
    property int ruleTarget: -1
    property string ruleName
    /// Where what is dragged would come to lie; -1 for nowhere.
    property int insertion: -1
    /// The folder that is dragged.
    property string dragged
    readonly property bool isDragging: dragged !== ""
    readonly property real pitch: Theme.rowSidebar + spacing
    readonly property alias hasMenu: menu.visible

    model: App.folders
    clip: true
    reuseItems: true
    // The row that is dragged keeps its hold of the pointer.
    cacheBuffer: isDragging ? 20000 : 320
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    boundsBehavior: Flickable.StopAtBounds
    currentIndex: App.folders.currentIndex
    bottomMargin: Theme.s2
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Folders")

    onCurrentIndexChanged: positionViewAtIndex(currentIndex, ListView.Contain)

    function takeFocus() {
        if (!currentItem)
            return false;
        currentItem.forceActiveFocus(Qt.TabFocusReason);
        return true;
    }

    function go(index) {
        if (count === 0)
            return;
        App.folders.selectAt(Math.max(0, Math.min(count - 1, index)));
        takeFocus();
    }

    function openMenu(row, x, y) {
        menu.key = row.key;
        menu.name = row.name;
        menu.index = row.index;
        menu.canRun = !row.isTrouble;
        menu.popup(row, x, y);
    }

    function insertionAt(y) {
        const place = Math.max(0, Math.min(height - 1, y)) + contentY;
        return Math.max(0, Math.min(count, Math.round((place - originY + spacing / 2) / pitch)));
    }

    /// Places are those of this list.
    function dragTo(x, y) {
        const isInside = x >= 0 && x <= width && y >= -scroll.edge && y <= height + scroll.edge;
        insertion = isInside ? insertionAt(y) : -1;
        if (isInside)
            scroll.near(y, () => list.dragTo(x, y));
        else
            scroll.end();
    }

    /// A rule is dragged to there.
    function carryRule(x, y) {
        const isBeside = x < 0 || x > width;
        const row = isBeside || y < 0 || y > height ? -1 : indexAt(x, y + contentY);
        ruleTarget = row === currentIndex ? -1 : row;
        if (isBeside)
            scroll.end();
        else
            scroll.near(y, () => list.carryRule(x, y));
    }

    function dragEnded() {
        insertion = -1;
        ruleTarget = -1;
        dragged = "";
        scroll.end();
    }

    Shortcut {
        sequence: "Escape"
        enabled: list.isDragging
        onActivated: list.dragEnded()
    }

    moveDisplaced: Transition {
        NumberAnimation {
            property: "y"
            duration: Theme.reorder
            easing.type: Easing.OutCubic
        }
    }

    EdgeScroll {
        id: scroll
        view: list
    }

    InsertionLine {
        parent: list.contentItem
        visible: list.insertion >= 0
        x: LayoutMirroring.enabled ? 11 : 10
        y: list.originY + list.insertion * list.pitch - list.spacing / 2
        z: 2
        width: list.width - 21
    }

    spacing: 2

    delegate: SidebarRow {
        width: ListView.view.width
        onDragBegun: list.dragged = key
        onDragMoved: (x, y) => {
            if (list.isDragging)
                list.dragTo(x, y);
        }
        onDragCancelled: list.dragEnded()
        onDragDropped: {
            const insertion = list.insertion;
            const isMeant = list.isDragging;
            list.dragEnded();
            if (isMeant)
                App.folders.moveBefore(key, insertion);
        }
    }

    Menu {
        id: menu

        property string key
        property string name
        property int index: -1
        property bool canRun: false

        MenuItem {
            text: qsTr("Run Now")
            iconName: "media-playback-start"
            enabled: menu.canRun
            onTriggered: App.page.runFolder(menu.key)
        }
        MenuDivider {}
        MenuItem {
            text: qsTr("Move Up")
            iconName: "go-up"
            shortcutText: qsTr("Alt+Up")
            enabled: menu.index > 0
            onTriggered: App.folders.moveBy(menu.key, -1)
        }
        MenuItem {
            text: qsTr("Move Down")
            iconName: "go-down"
            shortcutText: qsTr("Alt+Down")
            enabled: menu.index < list.count - 1
            onTriggered: App.folders.moveBy(menu.key, 1)
        }
        MenuDivider {}
        MenuItem {
            text: qsTr("Remove %1…").arg(menu.name)
            iconName: "list-remove"
            shortcutText: qsTr("Del")
            destructive: true
            onTriggered: App.folders.remove(menu.key)
        }
    }
}
