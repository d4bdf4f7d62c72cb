import QtQuick
import QtQuick.Window
import Quillon

/// The main window: without a frame of the desktop's, with rounded corners while it floats.
Window {
    id: window

    /// False where nothing can be seen through a window: then its corners are square.
    property bool canBeSeenThrough: true
    readonly property bool isFloating: visibility === Window.Windowed || visibility === Window.Hidden

    width: 1040
    height: 700
    minimumWidth: 960
    minimumHeight: 640
    title: "Quillon"
    color: "transparent"
    flags: Qt.Window | Qt.FramelessWindowHint

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    function toggleMaximized() {
        if (visibility === Window.Maximized)
            showNormal();
        else
            showMaximized();
    }

    MainContent {
        anchors.fill: parent
        radius: window.isFloating && window.canBeSeenThrough ? Theme.rCard : 0
    }

    ResizeEdges {
        anchors.fill: parent
        active: window.isFloating
    }
}
