import QtQuick
import QtQuick.Templates as T

/// Takes effect at once.
T.Switch {
    id: control

    property string label
    property int radius: 10

    implicitWidth: 34
    implicitHeight: 20
    padding: 0
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    containmentMask: hitArea

    Accessible.role: Accessible.CheckBox
    Accessible.name: label
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: press()
    Accessible.onToggleAction: press()

    function press() {
        toggle();
        toggled();
    }

    HitArea {
        id: hitArea
    }

    indicator: Rectangle {
        width: control.width
        height: control.height
        radius: control.radius
        color: control.enabled ? fill : Theme.faded(fill, Theme.bg)

        readonly property color fill: control.checked ? Theme.accent : Theme.switchOff

        Behavior on color {
            ColorAnimation {
                duration: Theme.base
            }
        }

        Rectangle {
            readonly property real travel: parent.width - width - 4
            x: 2 + (control.mirrored ? 1 - control.visualPosition : control.visualPosition) * travel
            y: 2
            width: 16
            height: 16
            radius: 8
            color: control.checked && (control.enabled || !Theme.isDark) ? Theme.knobOn : control.enabled ? Theme.knob : Theme.faded(Theme.knob, Theme.bg)

            Behavior on x {
                enabled: !control.pressed
                NumberAnimation {
                    duration: Theme.base
                    easing.type: Easing.OutCubic
                }
            }
        }
    }

    FocusRing {
        target: control
    }
}
