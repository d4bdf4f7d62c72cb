import QtQuick
import QtQuick.Templates as T

/// A number of days, typed or stepped.
T.SpinBox {
    id: control

    property string label
    property int radius: Theme.rTile

    signal modified(int value)

    from: 1
    to: 3650
    editable: true
    implicitWidth: 2 * 24 + Math.max(64, input.contentWidth + 16)
    implicitHeight: Theme.scaled(24)
    leftPadding: 24
    rightPadding: 24
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    containmentMask: hitArea
    opacity: enabled ? 1 : Theme.disabledOpacity
    inputMethodHints: Qt.ImhDigitsOnly
    textFromValue: value => value === 1 ? qsTr("1 day") : qsTr("%n days", "", value)
    valueFromText: text => {
        const digits = text.match(/\d+/);
        return digits ? Math.max(from, Math.min(to, Number(digits[0]))) : value;
    }
    validator: RegularExpressionValidator {
        regularExpression: /^.{0,24}$/
    }
    onValueModified: modified(value)
    Keys.onPressed: event => stepWith(event)

    function stepWith(event) {
        const step = Keystroke.step(event);
        event.accepted = step !== 0;
        if (step !== 0)
            stepBy(step);
    }

    function stepBy(step) {
        const before = value;
        if (step > 0)
            increase();
        else
            decrease();
        if (value !== before)
            modified(value);
    }

    Accessible.role: Accessible.SpinBox
    Accessible.name: label
    Accessible.description: displayText
    Accessible.onIncreaseAction: stepBy(1)
    Accessible.onDecreaseAction: stepBy(-1)

    HitArea {
        id: hitArea
        width: control.width + 2 * (Theme.smallestHit - control.leftPadding)
    }

    contentItem: TextInput {
        id: input
        text: control.displayText
        color: Theme.text1
        font.family: Theme.fontFamily
        font.pixelSize: Theme.caption.size
        font.weight: Font.Medium
        horizontalAlignment: Qt.AlignHCenter
        verticalAlignment: Qt.AlignVCenter
        selectByMouse: true
        selectionColor: Theme.accent
        selectedTextColor: Theme.onAccent
        readOnly: !control.editable
        validator: control.validator
        inputMethodHints: control.inputMethodHints
        clip: true
        Keys.onPressed: event => control.stepWith(event)
        Accessible.ignored: true
    }

    up.indicator: StepperPart {
        x: control.mirrored ? 0 : control.width - width
        hitOffset: (Theme.smallestHit - width) / 2
        height: control.height
        iconName: "list-add"
        hovered: control.up.hovered
        pressed: control.up.pressed
        enabled: control.value < control.to
    }

    down.indicator: StepperPart {
        x: control.mirrored ? control.width - width : 0
        hitOffset: (width - Theme.smallestHit) / 2
        height: control.height
        iconName: "list-remove"
        hovered: control.down.hovered
        pressed: control.down.pressed
        enabled: control.value > control.from
    }

    background: Rectangle {
        radius: control.radius
        color: Theme.card
        border.width: 1
        border.color: input.activeFocus && !control.visualFocus ? Theme.accent : Theme.lineStrong
    }

    FocusRing {
        target: control
    }
}
