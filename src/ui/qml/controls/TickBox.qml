import QtQuick
import QtQuick.Templates as T

/// checkState may be partial: a bar for "some".
T.CheckBox {
    id: control

    property string label
    property string description
    property int radius: Theme.rTick

    implicitWidth: 16
    implicitHeight: 16
    padding: 0
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : Theme.disabledOpacity
    containmentMask: hitArea

    Accessible.role: Accessible.CheckBox
    Accessible.name: label
    Accessible.description: description
    Accessible.checkable: true
    Accessible.checked: checkState === Qt.Checked
    Accessible.onPressAction: press()
    Accessible.onToggleAction: press()

    function press() {
        toggle();
        toggled();
    }

    HitArea {
        id: hitArea
    }

    indicator: TickMark {
        anchors.centerIn: parent
        checkState: control.checkState
    }

    FocusRing {
        target: control
    }
}
