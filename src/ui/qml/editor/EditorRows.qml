import QtQuick
import Quillon

/// The rows of a list that is being edited, which can be dragged and moved about.
Column {
    id: list

    property QtObject rows
    property alias delegate: repeater.delegate
    /// Index of the row that has the focus; -1 for none.
    readonly property int focusedRow: {
        for (let index = 0; index < repeater.count; ++index)
            if (repeater.itemAt(index) && repeater.itemAt(index).activeFocus)
                return index;
        return -1;
    }

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

    /// part: "first" or "value".
    function focusRow(index, part) {
        const row = repeater.itemAt(index);
        if (row)
            row.focusPart(part);
    }

    /// The row over which a point of this list lies.
    function rowAt(y) {
        for (let index = 0; index < repeater.count; ++index) {
            const row = repeater.itemAt(index);
            if (row && y >= row.y && y < row.y + row.height)
                return index;
        }
        return -1;
    }

    function removeRow(index) {
        const hadFocus = index === focusedRow;
        rows.remove(index);
        if (hadFocus)
            focusRow(Math.min(index, repeater.count - 1), "first");
    }
}
