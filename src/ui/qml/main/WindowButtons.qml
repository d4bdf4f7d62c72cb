import QtQuick
import Quillon

/// Minimise, maximise and close.
Row {
    id: buttons

    property var window: Window.window
    property bool isAtStart: false
    readonly property bool isMaximized: window && window.visibility === Window.Maximized

    spacing: 6
    layoutDirection: isAtStart ? Qt.RightToLeft : Qt.LeftToRight

    IconButton {
        kind: "quiet"
        radius: width / 2
        fillColor: Theme.hover
        iconName: "window-minimize"
        label: qsTr("Minimise")
        focusPolicy: Qt.NoFocus
        onClicked: buttons.window.showMinimized()
    }

    IconButton {
        kind: "quiet"
        radius: width / 2
        fillColor: Theme.hover
        iconName: buttons.isMaximized ? "window-restore" : "window-maximize"
        label: buttons.isMaximized ? qsTr("Restore") : qsTr("Maximise")
        focusPolicy: Qt.NoFocus
        onClicked: buttons.window.toggleMaximized()
    }

    IconButton {
        kind: "quiet"
        radius: width / 2
        fillColor: Theme.hover
        glyph: "cross"
        label: qsTr("Close")
        shortcutText: "Ctrl+W"
        focusPolicy: Qt.NoFocus
        onClicked: buttons.window.close()
    }
}
