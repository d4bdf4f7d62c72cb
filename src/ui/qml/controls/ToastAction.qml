import QtQuick
import QtQuick.Templates as T

T.AbstractButton {
    id: control

    readonly property int radius: Theme.rSmall

    implicitWidth: words.implicitWidth
    implicitHeight: words.implicitHeight
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    containmentMask: hitArea
    Keys.onPressed: event => Keystroke.press(event, control)

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: clicked()

    HitArea {
        id: hitArea
    }

    contentItem: Label {
        id: words
        text: control.text
        style: Theme.bodyStrong
        color: Theme.toastLink
        font.underline: control.hovered
        Accessible.ignored: true
    }

    FocusRing {
        target: control
        border.color: Theme.toastLink
    }
}
