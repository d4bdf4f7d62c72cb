import QtQuick

/// The edges of a window without a frame, to make it larger and smaller with.
Item {
    id: zone

    property int reach: 6
    property bool active: true

    Repeater {
        model: zone.active ? [[0, 0], [1, 0], [2, 0], [0, 1], [2, 1], [0, 2], [1, 2], [2, 2]] : []

        MouseArea {
            required property var modelData
            readonly property int column: modelData[0]
            readonly property int row: modelData[1]
            readonly property int edges: (column === 0 ? Qt.LeftEdge : column === 2 ? Qt.RightEdge : 0) | (row === 0 ? Qt.TopEdge : row === 2 ? Qt.BottomEdge : 0)

            x: column === 0 ? 0 : column === 1 ? zone.reach : zone.width - zone.reach
            y: row === 0 ? 0 : row === 1 ? zone.reach : zone.height - zone.reach
            width: column === 1 ? zone.width - 2 * zone.reach : zone.reach
            height: row === 1 ? zone.height - 2 * zone.reach : zone.reach
            cursorShape: column === 1 ? Qt.SizeVerCursor : row === 1 ? Qt.SizeHorCursor : column === row ? Qt.SizeFDiagCursor : Qt.SizeBDiagCursor
            onPressed: Window.window.startSystemResize(edges)
        }
    }
}
