import QtQuick
import Quillon

/// The rows of a list that is being edited, which can be dragged and moved about.
Column {
    id: list

    property QtObject rows
    /// What this list scrolls in.
    property Flickable scroller
    readonly property alias edgeScroll: edgeScroll
    property alias delegate: repeater.delegate
    /// What has the focus when the last row is gone.
    property Item whenEmpty
    /// A row that is dragged lies over what is next to the list, too.
    property bool isDragging: false

    z: isDragging ? 1 : 0
    spacing: 6
    Accessible.role: Accessible.List

    move: Transition {
        NumberAnimation {
            properties: "y"
            duration: Theme.reorder
            easing.type: Easing.OutCubic
        }
    }

    Repeater {
        id: repeater
        model: list.rows
    }

    /// Index of the row that has the focus; -1 for none.
    function focusedRow() {
        for (let index = 0; index < repeater.count; ++index)
            if (repeater.itemAt(index) && repeater.itemAt(index).activeFocus)
                return index;
        return -1;
    }

    /// part: "first" or "value".
    function focusRow(index, part) {
        const row = repeater.itemAt(index);
        if (row)
            row.focusPart(part);
    }

    EdgeScroll {
        id: edgeScroll
        view: list.scroller
    }

    /// The row over which a point of this list lies once every row has come to rest; the nearest to a
    /// point above or below them all.
    function rowAt(y) {
        if (y < 0)
            return 0;
        let top = 0;
        for (let index = 0; index < repeater.count; ++index) {
            const bottom = top + repeater.itemAt(index).height;
            if (y < bottom + spacing)
                return index;
            top = bottom + spacing;
        }
        return repeater.count - 1;
    }

    function removeRow(index) {
        const hadFocus = index === focusedRow();
        rows.remove(index);
        if (hadFocus && repeater.count > 0)
            focusRow(Math.min(index, repeater.count - 1), "first");
        else if (hadFocus)
            whenEmpty.forceActiveFocus(Qt.TabFocusReason);
    }
}
