import QtQuick

/// Moves the window, and maximises it with a double click.
MouseArea {
    readonly property var window: Window.window

    acceptedButtons: Qt.LeftButton
    onPressed: window.startSystemMove()
    onDoubleClicked: window.toggleMaximized()
}
