import QtQuick
import Quillon

/// Every file that a clean-up would take, under its recipe. One stop of the Tab key.
ListView {
    id: list

    model: App.cleanup.files
    clip: true
    reuseItems: true
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    boundsBehavior: Flickable.StopAtBounds
    currentIndex: 0
    cacheBuffer: 200
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Files to be tidied")

    readonly property int page: Math.max(1, Math.floor(height / Theme.rowFile) - 1)

    delegate: CleanupFileRow {
        width: ListView.view.width
        onTicked: on => App.cleanup.tickRow(index, on)
        onRevealAsked: App.cleanup.reveal(index)
        onPressed: list.currentIndex = index
    }

    onActiveFocusChanged: {
        if (activeFocus && currentItem && !currentItem.activeFocus)
            currentItem.forceActiveFocus(Qt.TabFocusReason);
    }

    function go(index) {
        if (count === 0)
            return;
        currentIndex = Math.max(0, Math.min(count - 1, index));
        positionViewAtIndex(currentIndex, ListView.Contain);
        currentItem.forceActiveFocus(Qt.TabFocusReason);
    }

    function showRecipe(recipe) {
        const head = App.cleanup.headOf(recipe);
        if (head >= 0)
            positionViewAtIndex(head, ListView.Beginning);
    }

    Keys.onPressed: event => {
        const target = Keystroke.inList(event, currentIndex, count, page);
        event.accepted = target !== undefined;
        if (event.accepted)
            go(target);
    }
}
