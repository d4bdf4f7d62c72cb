import QtQuick

/// Where a window's content lies in it: when what has the focus hides, the next that can be seen takes it.
Item {
    readonly property Item focused: Window.activeFocusItem
    readonly property bool isHidden: focused !== null && !focused.visible

    onIsHiddenChanged: Qt.callLater(moveOn)

    function moveOn() {
        const next = isHidden ? focused.nextItemInFocusChain() : null;
        if (next)
            next.forceActiveFocus(focused.focusReason ?? Qt.OtherFocusReason);
    }
}
