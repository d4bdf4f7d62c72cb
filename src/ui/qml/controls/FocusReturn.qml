pragma Singleton

import QtQuick

/// Where the focus goes back to when what took it is gone.
QtObject {
    /// The item itself; of an item of a menu, which is gone by then, what had the focus before the menu.
    function openerOf(item) {
        return item && item.menu ? item.menu.opener : item;
    }

    function giveTo(item) {
        if (item && item.visible && item.enabled)
            item.forceActiveFocus(Qt.PopupFocusReason);
    }
}
