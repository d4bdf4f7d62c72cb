import QtQuick
import Quillon

/// The rows of the history, with the headings of the days, of which the current one sticks to the
/// top. One stop of the Tab key.
ListView {
    id: list

    readonly property int heading: Theme.scaled(43)
    /// Whether the keys moved the focus last, so that it goes on being shown.
    property bool isByKeys: false

    model: App.history
    clip: true
    reuseItems: true
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 400
    bottomMargin: Theme.s6
    currentIndex: 0
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Activity")

    section.property: "day"
    section.labelPositioning: ViewSection.InlineLabels | ViewSection.CurrentLabelAtStart
    section.delegate: HistoryHeading {
        width: ListView.view ? ListView.view.width : 0
        height: list.heading
    }

    delegate: HistoryDelegate {
        width: ListView.view.width
        onPressedByHand: index => list.isByKeys = false
        onLeaveAsked: list.go(App.history.headOf(list.currentIndex))
    }

    onCurrentItemChanged: {
        if (currentItem && activeFocus && isByKeys)
            currentItem.takeFocusByKey();
    }

    function go(index) {
        if (count === 0)
            return;
        isByKeys = true;
        currentIndex = Math.max(0, Math.min(count - 1, index));
        positionViewAtIndex(currentIndex, ListView.Contain);
        const hidden = contentY + heading - currentItem.y;
        if (hidden > 0)
            contentY = Math.max(originY, contentY - hidden);
        currentItem.takeFocusByKey();
    }

    /// The rows that are seen while the list changes, each with how far down it is. Empty at the top,
    /// where what is new shall be seen.
    property var places: []

    function keepPlace() {
        if (places.length > 0 || contentY <= originY)
            return;
        for (let y = heading; y < height; y += Theme.rowActivity) {
            const item = itemAt(width / 2, contentY + y);
            if (item)
                places.push([item.key, item.y - contentY]);
        }
    }

    function goBackToPlace() {
        const kept = places.find(place => App.history.indexOf(place[0]) >= 0);
        places = [];
        if (!kept)
            return;
        const index = App.history.indexOf(kept[0]);
        forceLayout();
        positionViewAtIndex(index, ListView.Beginning);
        const item = itemAtIndex(index);
        if (item)
            contentY = Math.max(originY, Math.min(item.y - kept[1], originY + contentHeight + bottomMargin - height));
    }

    Connections {
        target: App.history
        function onRowsAboutToBeInserted() {
            list.keepPlace();
        }
        function onRowsAboutToBeRemoved() {
            list.keepPlace();
        }
        function onRefreshed() {
            list.goBackToPlace();
        }
        function onFilterChanged() {
            list.currentIndex = 0;
            list.positionViewAtBeginning();
        }
    }

    readonly property int page: Math.max(1, Math.floor(height / Theme.rowActivity) - 1)

    Keys.onPressed: event => {
        const target = Keystroke.inList(event, currentIndex, count, page);
        event.accepted = target !== undefined;
        if (event.accepted)
            go(target);
    }
}
