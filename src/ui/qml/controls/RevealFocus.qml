import QtQuick

/// Scrolls a view to what the keyboard goes to in it.
Item {
    id: reveal

    property Flickable view
    /// What has to hold the item: the view, or where things lie that scroll with it.
    property Item area: view
    readonly property Item focused: Window.activeFocusItem

    // What was clicked was seen, and must not move away from beneath the pointer; and the view of a window
    // that is come back to stays where it is.
    onFocusedChanged: if (focused && ![Qt.MouseFocusReason, Qt.ActiveWindowFocusReason].includes(focused.focusReason))
        Qt.callLater(show)

    function show() {
        if (!holdsFocus())
            return;
        scroll();
        // Rows that came into view may be higher than they were thought to be.
        scroll();
    }

    function holdsFocus() {
        let item = focused === view ? null : focused;
        while (item && item !== area)
            item = item.parent;
        return item !== null;
    }

    function scroll() {
        const top = focused.mapToItem(view, 0, 0).y + view.contentY - Theme.s4;
        const least = top + focused.height + 2 * Theme.s4 - view.height;
        const end = view.originY + Math.max(0, view.contentHeight - view.height);
        view.contentY = Math.max(view.originY, Math.min(end, top, Math.max(view.contentY, least)));
    }
}
