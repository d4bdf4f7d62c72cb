import QtQuick

/// Scrolls a view for as long as something is held near its upper or lower edge.
Timer {
    id: scroll

    required property Flickable view
    property int edge: 40
    property int step: 0
    property var again: null

    interval: 16
    repeat: true
    running: step !== 0

    /// What is held is at that height of the view. `then` is called when other things have come to lie
    /// beneath it.
    function near(y, then) {
        again = then;
        step = y < edge ? -10 : y > view.height - edge ? 10 : 0;
    }

    function end() {
        step = 0;
        again = null;
    }

    onTriggered: {
        const last = view.originY + Math.max(0, view.contentHeight - view.height);
        const to = Math.max(view.originY, Math.min(last, view.contentY + step));
        if (to === view.contentY)
            return;
        view.contentY = to;
        again();
    }
}
