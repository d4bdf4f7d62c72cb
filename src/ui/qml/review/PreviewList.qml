import QtQuick
import Quillon

/// The rows of the preview. One stop of the Tab key.
ListView {
    id: list

    model: App.preview
    clip: true
    reuseItems: true
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    boundsBehavior: Flickable.StopAtBounds
    currentIndex: 0
    cacheBuffer: 200
    Accessible.role: Accessible.List
    Accessible.name: qsTr("What would happen")

    readonly property int page: Math.max(1, Math.floor(height / Theme.scaled(54)) - 1)

    delegate: PreviewRow {
        width: ListView.view.width
        isLast: index === ListView.view.count - 1
        onClicked: list.go(index, Qt.MouseFocusReason)
    }

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
