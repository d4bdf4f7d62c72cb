import QtQuick
import QtQuick.Templates as T

/// Items are `MenuItem`, `MenuDivider` and further menus; open it with popup() or open().
T.Menu {
    id: menu

    property string iconName
    /// What had the focus before, and gets it back unless an item gave it away.
    property Item opener

    implicitWidth: Math.max(200, contentWidthOfItems + leftPadding + rightPadding)
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    margins: 12
    padding: 5
    overlap: 5
    cascade: true

    readonly property real contentWidthOfItems: {
        let most = 0;
        for (let index = 0; index < count; ++index)
            most = Math.max(most, itemAt(index).implicitWidth);
        return most;
    }

    delegate: MenuItem {}

    onAboutToShow: opener = parent ? parent.Window.activeFocusItem : null
    onClosed: {
        if (opener && opener.visible && isLeftBy(opener))
            opener.forceActiveFocus(Qt.PopupFocusReason);
    }

    /// Whether the focus fell back to what that item lies in.
    function isLeftBy(item) {
        const now = item.Window.activeFocusItem;
        let around = item.parent;
        while (now && around && around !== now)
            around = around.parent;
        return !now || around === now;
    }

    contentItem: ListView {
        implicitHeight: contentHeight
        model: menu.contentModel
        interactive: Window.window ? contentHeight + menu.topPadding + menu.bottomPadding > Window.window.height : false
        clip: interactive
        currentIndex: menu.currentIndex
        boundsBehavior: Flickable.StopAtBounds
        Keys.onPressed: event => {
            const letter = event.modifiers & ~Qt.ShiftModifier ? "" : event.text.trim().toLowerCase();
            event.accepted = letter !== "" && menu.goTo(letter);
        }
    }

    /// The next item that begins with that letter becomes the current one.
    function goTo(letter) {
        for (let step = 1; step <= count; ++step) {
            const index = (Math.max(0, currentIndex) + step) % count;
            const item = itemAt(index);
            if (item && item.enabled && item.visible && item.text && item.text.toLowerCase().startsWith(letter)) {
                currentIndex = index;
                item.forceActiveFocus(Qt.TabFocusReason);
                return true;
            }
        }
        return false;
    }

    background: MenuSurface {}
    enter: MenuEnter {}
}
