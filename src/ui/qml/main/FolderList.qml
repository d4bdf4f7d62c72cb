import QtQuick
import Quillon

/// The folders. Arrows select, Alt with them reorders, Delete removes; a folder that is dragged here
/// from a file manager is added where the line is.
ListView {
    id: list

    /// The row that a rule is dragged over, and the rule's name.
    property int ruleTarget: -1
    property string ruleName
    /// Where what is dragged would come to lie; -1 for nowhere.
    property int insertion: -1
    readonly property int edge: 40

    model: App.folders
    clip: true
    reuseItems: true
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
        menu.popup(row, x, y);
    }

    function insertionAt(y) {
        const row = indexAt(width / 2, y + contentY);
        if (row < 0)
            return count;
        const item = itemAtIndex(row);
        return y + contentY > item.y + item.height / 2 ? row + 1 : row;
    }

    function scrollNear(y) {
        scroll.step = y < edge ? -8 : y > height - edge ? 8 : 0;
    }

    function dragTo(y) {
        insertion = insertionAt(y);
        scrollNear(y);
    }

    function dragEnded() {
        insertion = -1;
        scroll.step = 0;
    }

    moveDisplaced: Transition {
        NumberAnimation {
            property: "y"
            duration: Theme.reorder
            easing.type: Easing.OutCubic
        }
    }

    Timer {
        id: scroll
        property int step: 0
        interval: 16
        repeat: true
        running: step !== 0
        onTriggered: list.contentY = Math.max(list.originY, Math.min(list.originY + Math.max(0, list.contentHeight - list.height), list.contentY + step))
    }

    DropArea {
        anchors.fill: parent
        z: -1
        onEntered: drag => drag.accepted = drag.hasUrls && App.folders.mayTake(drag.urls)
        onPositionChanged: drag => list.dragTo(drag.y)
        onExited: list.dragEnded()
        onDropped: drop => {
            const row = list.insertionAt(drop.y);
            list.dragEnded();
            App.folders.addDropped(drop.urls, row);
            drop.accept(Qt.CopyAction);
        }
    }

    Rectangle {
        id: insertionLine
        parent: list.contentItem
        visible: list.insertion >= 0
        x: 10
        y: list.originY + list.insertion * Theme.rowSidebar + list.insertion * 2 - 1
        z: 2
        width: list.width - 21
        height: 2
        color: Theme.accent

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            anchors.horizontalCenter: parent.left
            width: 8
            height: 8
            radius: 4
            color: Theme.accent
        }
    }

    spacing: 2

    delegate: SidebarRow {
        width: ListView.view.width
        onDragMoved: y => list.dragTo(y)
        onDragCancelled: list.dragEnded()
        onDragDropped: {
            const to = list.insertion > index ? list.insertion - 1 : list.insertion;
            list.dragEnded();
            App.folders.moveTo(key, to);
        }
    }

    Menu {
        id: menu

        property string key
        property string name
        property int index: -1

        MenuItem {
            text: qsTr("Run Now")
            iconName: "media-playback-start"
            onTriggered: {
                App.folders.select(menu.key);
                App.page.run();
            }
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
