import QtQuick
import Quillon

/// The recipes of a clean-up, in the folder's order.
ListView {
    id: list

    property int looked: 0

    signal lookedAt(int index)

    model: App.cleanup.recipes
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    topMargin: 10
    bottomMargin: 10
    spacing: 2
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Recipes")

    delegate: RecipeCard {
        x: 10
        width: ListView.view.width - 20
        isCurrent: index === list.looked
        focus: index === 0
        onLookedAt: {
            list.looked = index;
            list.lookedAt(index);
        }
    }

    function go(index) {
        const kept = Math.max(0, Math.min(count - 1, index));
        positionViewAtIndex(kept, ListView.Contain);
        const item = itemAtIndex(kept);
        if (item)
            item.forceActiveFocus(Qt.TabFocusReason);
    }

    Keys.onPressed: event => {
        const target = Keystroke.inList(event, looked, count);
        event.accepted = target !== undefined;
        if (event.accepted)
            go(target);
    }
}
