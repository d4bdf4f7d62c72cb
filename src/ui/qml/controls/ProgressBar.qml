import QtQuick
import QtQuick.Templates as T

/// How far something has come. Words stand beside it.
T.ProgressBar {
    id: control

    property string label

    implicitWidth: 200
    implicitHeight: 4

    Accessible.role: Accessible.ProgressBar
    Accessible.name: label
    Accessible.description: indeterminate ? "" : qsTr("%1 %").arg(Math.round(position * 100))

    background: Rectangle {
        radius: 2
        color: Theme.hover
        border.width: Theme.isHighContrast ? 1 : 0
        border.color: Theme.line
    }

    contentItem: Item {
        Rectangle {
            id: done
            width: control.indeterminate ? parent.width / 4 : Math.max(parent.height, control.position * parent.width)
            height: parent.height
            x: control.mirrored ? parent.width - width : 0
            radius: 2
            color: Theme.accent
            visible: control.indeterminate || control.position > 0

            NumberAnimation on x {
                running: control.indeterminate && control.visible && !Theme.reducesMotion
                loops: Animation.Infinite
                from: 0
                to: control.width - done.width
                duration: Math.max(1, Theme.think)
                easing.type: Easing.InOutSine
            }

            Behavior on width {
                enabled: !control.indeterminate
                NumberAnimation {
                    duration: Theme.base
                    easing.type: Easing.OutCubic
                }
            }
        }
    }
}
