import QtQuick
import QtQuick.Templates as T

/// Beside a list or page that is longer than its place: a sibling of the flickable that it names.
T.ScrollBar {
    id: bar

    required property Flickable flickable

    anchors.right: flickable.right
    anchors.top: flickable.top
    anchors.bottom: flickable.bottom
    width: 10
    padding: 2
    orientation: Qt.Vertical
    minimumSize: 0.08
    size: flickable.visibleArea.heightRatio
    position: flickable.visibleArea.yPosition
    visible: size > 0 && size < 1
    focusPolicy: Qt.NoFocus
    onPositionChanged: if (pressed) flickable.contentY = flickable.originY + position * flickable.contentHeight
    Accessible.ignored: true

    contentItem: Rectangle {
        radius: width / 2
        color: Theme.text3
        opacity: bar.pressed ? 0.8 : bar.hovered ? 0.6 : 0.3
    }
}
