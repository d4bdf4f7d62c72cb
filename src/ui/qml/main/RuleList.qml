import QtQuick
import Quillon

/// The rules of the folder, with room for their heading above them and for its activity below.
ListView {
    id: list

    property int startMargin: Theme.s6
    property int endMargin: Theme.s6
    property real headingHeight: 0
    property real activityHeight: 0
    property Item carried
    /// Where a rule that is dragged would come to lie; -1 for nowhere.
    property int insertion: -1

    /// There is no rule to take the focus.
    signal focusTurnedDown

    model: App.page.rules
    reuseItems: true
    spacing: Theme.s2
    cacheBuffer: carried.isCarrying || settling.running ? 20000 : 400
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    boundsBehavior: Flickable.StopAtBounds
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Rules")

    function takeFocus() {
        if (count === 0) {
            focusTurnedDown();
            return true;
        }
        return focusRow(Math.max(0, currentIndex));
    }

    function focusRow(index) {
        if (index < 0 || index >= count)
            return false;
        currentIndex = index;
        positionViewAtIndex(index, ListView.Contain);
        currentItem.forceActiveFocus(Qt.TabFocusReason);
        return true;
    }

    function openMenu(card, anchor) {
        menu.openFor(card, anchor, anchor.width - menu.implicitWidth, anchor.height + 2);
    }

    function openMenuAt(card, place) {
        menu.openFor(card, card, place.x, place.y);
    }

    /// Once the menu is open.
    function showCopies() {
        menu.showCopies();
    }

    /// The rule before which a place of the list lies; the number of rules behind the last.
    function insertionAt(y) {
        for (let row = 0; row < count; ++row) {
            const item = itemAtIndex(row);
            if (item && y < item.y + item.height / 2)
                return row;
        }
        return count;
    }

    function dragTo(x, y) {
        const isInside = x >= 0 && x <= width && y >= -scroll.edge && y <= height;
        insertion = isInside ? insertionAt(y + contentY) : -1;
        if (isInside)
            scroll.near(y, () => list.dragTo(x, y));
        else
            scroll.end();
    }

    function dropRule() {
        if (insertion < 0 || !carried.isCarrying)
            return;
        settling.restart();
        App.page.rules.moveBefore(carried.key, insertion);
    }

    function dragEnded() {
        insertion = -1;
        scroll.end();
    }

    // A card that is still on its way must not be used for another rule: it would come to lie in that
    // one's place.
    Timer {
        id: settling
        interval: Theme.reorder + 100
    }

    EdgeScroll {
        id: scroll
        view: list
    }

    header: Item {
        width: list.width
        height: list.headingHeight
    }

    footer: Item {
        width: list.width
        height: list.activityHeight
    }

    delegate: RuleCard {
        x: list.LayoutMirroring.enabled ? list.endMargin : list.startMargin
        width: ListView.view ? ListView.view.width - list.startMargin - list.endMargin : 0
        isCarried: list.carried.key === key
        onGripTaken: list.carried.take(this)
        onGripMoved: place => {
            if (list.carried.isCarrying)
                list.carried.move(list.carried.parent.mapFromItem(null, place.x, place.y));
        }
        onGripReleased: place => list.carried.letGo(list.carried.parent.mapFromItem(null, place.x, place.y))
        onGripCancelled: list.carried.cancel()
    }

    moveDisplaced: Transition {
        NumberAnimation {
            property: "y"
            duration: Theme.reorder
            easing.type: Easing.OutCubic
        }
    }
    move: Transition {
        NumberAnimation {
            property: "y"
            duration: Theme.reorder
            easing.type: Easing.OutCubic
        }
    }

    InsertionLine {
        readonly property Item before: list.insertion > 0 ? list.itemAtIndex(list.insertion - 1) : null
        readonly property Item after: list.insertion >= 0 ? list.itemAtIndex(list.insertion) : null

        parent: list.contentItem
        visible: before !== null || after !== null
        z: 3
        x: list.LayoutMirroring.enabled ? list.endMargin : list.startMargin
        y: after ? after.y - 5 : before ? before.y + before.height + 3 : 0
        width: list.width - list.startMargin - list.endMargin
    }

    RuleMenu {
        id: menu
        list: list
    }
}
