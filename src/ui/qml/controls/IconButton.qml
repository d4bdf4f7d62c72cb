import QtQuick
import QtQuick.Templates as T

/// kind: secondary (32 pixels, outlined), part (so, too, without the outline) or quiet (26 pixels, with a
/// hit area of 32). The label is its name and its tooltip.
T.Button {
    id: control

    property string iconName
    property string glyph
    property string label
    property string kind: "secondary"
    property string shortcutText
    property string disabledReason
    property bool busy: false
    property int iconSize: 16
    /// For an arrow.
    property bool mirrorsRightToLeft: false
    property int radius: kind === "quiet" ? Theme.rTile : Theme.rControl
    property color iconColor: kind === "quiet" ? Theme.text2 : Theme.text1
    property color fillColor: "transparent"

    implicitWidth: kind === "quiet" ? Theme.controlSmall : Theme.control
    implicitHeight: implicitWidth
    padding: 0
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : Theme.disabledOpacity
    containmentMask: hitArea
    Keys.onPressed: event => Keystroke.press(event, control)

    Accessible.role: Accessible.Button
    Accessible.name: label
    Accessible.description: enabled ? "" : disabledReason
    Accessible.onPressAction: if (!busy) clicked()

    HitArea {
        id: hitArea
    }

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            visible: !control.busy
            iconName: control.iconName
            glyph: control.glyph
            size: control.iconSize
            color: control.iconColor
            mirrorsRightToLeft: control.mirrorsRightToLeft
        }

        Loader {
            anchors.centerIn: parent
            active: control.busy
            sourceComponent: Spinner {
                size: 14
            }
        }
    }

    background: ButtonFill {
        kind: control.kind
        radius: control.radius
        hovered: control.hovered && control.enabled && !control.busy
        pressed: control.down && !control.busy || control.checked
        color: control.fillColor.a > 0 && !hovered && !pressed ? control.fillColor : control.kind === "secondary" && !hovered && !pressed ? Theme.card : hovered || pressed ? Theme.hover : "transparent"
    }

    Loader {
        anchors.fill: parent
        active: control.busy
        sourceComponent: MouseArea {}
    }

    FocusRing {
        target: control
    }

    HoverTip {
        text: control.label
        shortcutText: control.shortcutText
    }

    DisabledTip {
        reason: control.disabledReason
    }
}
