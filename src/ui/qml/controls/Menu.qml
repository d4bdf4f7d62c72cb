import QtQuick
import QtQuick.Templates as T

/// Items are `MenuItem`, `MenuDivider` and further menus; open it with popup() or open().
T.Menu {
    id: menu

    property string iconName
    /// What had the focus before, and gets it back unless an item gave it away.
    property Item opener
    property bool isByKeys: false

    implicitWidth: Math.min(Theme.scaled(320), Math.max(200, contentWidthOfItems + leftPadding + rightPadding))
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

    onAboutToShow: {
        opener = parent ? FocusReturn.openerOf(parent.menu ? parent : parent.Window.activeFocusItem) : null;
        isByKeys = opener !== null && opener.visualFocus === true;
    }
    onOpened: {
        if (isByKeys && currentIndex < 0)
            goToEnd(1);
    }
    onClosed: {
        if (opener && isLeftBy(opener))
            FocusReturn.giveTo(opener);
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
            event.accepted = event.key === Qt.Key_Home ? menu.goToEnd(1) : event.key === Qt.Key_End ? menu.goToEnd(-1) : letter !== "" && menu.goTo(letter);
        }
    }

    function take(index) {
        const item = itemAt(index);
        if (!item || !item.enabled || !item.visible || !item.text)
            return false;
        currentIndex = index;
        item.forceActiveFocus(Qt.TabFocusReason);
        return true;
    }

    /// The first item becomes the current one; with -1 the last.
    function goToEnd(step) {
        for (let index = step > 0 ? 0 : count - 1; index >= 0 && index < count; index += step)
            if (take(index))
                return true;
        return false;
    }

    /// The next item that begins with that letter becomes the current one.
    function goTo(letter) {
        for (let step = 1; step <= count; ++step) {
            const index = (Math.max(0, currentIndex) + step) % count;
            if (itemAt(index).text?.toLowerCase().startsWith(letter) && take(index))
                return true;
        }
        return false;
    }

    background: MenuSurface {}
    enter: MenuEnter {}
}
