import QtQuick
import Quillon

/// Rows that each stand for a file. One stop of the Tab key.
ListView {
    id: list

    property int rowHeight: Theme.rowFile
    readonly property int page: Math.max(1, Math.floor(height / rowHeight) - 1)

    clip: true
    reuseItems: true
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    boundsBehavior: Flickable.StopAtBounds
    currentIndex: 0
    cacheBuffer: 200
    Accessible.role: Accessible.List

    onActiveFocusChanged: {
        if (activeFocus && currentItem && !currentItem.activeFocus)
            currentItem.forceActiveFocus(Qt.TabFocusReason);
    }

    function go(index, reason) {
        if (count === 0)
            return;
        currentIndex = Math.max(0, Math.min(count - 1, index));
        positionViewAtIndex(currentIndex, ListView.Contain);
        currentItem.forceActiveFocus(reason);
    }

    Keys.onPressed: event => {
        const target = Keystroke.inList(event, currentIndex, count, page);
        event.accepted = target !== undefined;
        if (event.accepted)
            go(target, Qt.TabFocusReason);
    }
}
