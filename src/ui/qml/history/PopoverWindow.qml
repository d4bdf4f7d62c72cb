import QtQuick
import QtQuick.Window
import Quillon

/// The popover beside the tray item. Its surface lies `margin` inside the window, where its shadow
/// has room.
Window {
    id: popover

    /// 0 where nothing can be seen through a window: then it has no shadow and square corners.
    property int margin: 40
    property bool isSquare: margin === 0

    width: Math.min(Theme.scaled(340), Screen.desktopAvailableWidth) + 2 * margin
    height: Math.min(Theme.scaled(460), Screen.desktopAvailableHeight) + 2 * margin
    title: qsTr("Quillon")
    color: "transparent"
    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    onVisibleChanged: {
        App.popover.isShown = visible;
        if (visible)
            entrance.start();
    }

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Rectangle {
        id: surface
        anchors.fill: parent
        anchors.margins: popover.margin
        radius: popover.isSquare ? 0 : Theme.rSheet
        color: Theme.bg
        border.width: 1
        border.color: Theme.line

        Shadow {
            elevation: popover.isSquare ? 0 : 2
        }

        PopoverContent {
            anchors.fill: parent
            focus: true
        }
    }

    NumberAnimation {
        id: entrance
        target: surface
        property: "opacity"
        from: 0
        to: 1
        duration: Theme.base
        easing.type: Easing.OutCubic
    }
}
