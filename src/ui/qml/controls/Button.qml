import QtQuick
import QtQuick.Templates as T

/// kind: primary, secondary, dobbin, quiet, link or destructive.
T.Button {
    id: control

    property string kind: "secondary"
    property string iconName
    property string glyph
    /// A spinner in place of the icon; nothing happens on a press until it ends.
    property bool busy: false
    property bool small: false
    property bool large: false
    property bool opensMore: false
    property string toolTip
    property string shortcutText
    /// Why it is disabled, for its tooltip.
    property string disabledReason

    readonly property bool filled: kind === "primary" || kind === "dobbin"
    readonly property color ink: kind === "primary" ? Theme.onAccent : kind === "dobbin" ? Theme.onDobbin : kind === "link" ? Theme.accent : kind === "destructive" ? Theme.error : kind === "quiet" ? Theme.text2 : Theme.text1
    readonly property int radius: small ? Theme.rTile : Theme.rControl

    implicitHeight: kind === "link" || small ? Theme.controlSmall : large ? Theme.controlLarge : Theme.control
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    leftPadding: kind === "link" || small ? 10 : 13
    rightPadding: leftPadding
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.disabledOpacity
    Keys.priority: Keys.BeforeItem
    Keys.onPressed: event => event.accepted = busy && event.key === Qt.Key_Space
    Keys.onReturnPressed: event => pressWith(event)
    Keys.onEnterPressed: event => pressWith(event)

    function pressWith(event) {
        event.accepted = event.modifiers === Qt.NoModifier || event.modifiers === Qt.KeypadModifier;
        if (event.accepted && !busy)
            click();
    }

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: enabled ? "" : disabledReason
    Accessible.onPressAction: if (!busy) click()

    contentItem: Item {
        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight

        Row {
            id: row
            anchors.centerIn: parent
            spacing: 7

            Item {
                anchors.verticalCenter: parent.verticalCenter
                visible: control.iconName !== "" || control.glyph !== "" || control.busy && control.text === ""
                width: control.small ? 14 : 16
                height: width

                Symbol {
                    anchors.fill: parent
                    visible: !control.busy
                    iconName: control.iconName
                    glyph: control.glyph
                    size: parent.width
                    color: control.ink
                }
            }

            Label {
                anchors.verticalCenter: parent.verticalCenter
                visible: text !== ""
                width: Math.min(implicitWidth, Math.max(0, control.availableWidth - x))
                text: control.text
                style: control.filled ? Theme.bodyStrong : Theme.bodyMedium
                color: control.ink
                font.pixelSize: control.small ? Theme.caption.size : Theme.body.size
                font.underline: control.kind === "link" && control.hovered
                opacity: control.busy && control.iconName === "" && control.glyph === "" ? 0 : 1
                Accessible.ignored: true
            }

            Glyph {
                anchors.verticalCenter: parent.verticalCenter
                visible: control.opensMore
                name: "chevron"
                rotation: control.LayoutMirroring.enabled ? 90 : -90
                size: 10
                color: control.ink
            }
        }

        Spinner {
            visible: control.busy
            size: 14
            x: row.x + (control.iconName !== "" || control.glyph !== "" ? 1 : (row.width - width) / 2)
            anchors.verticalCenter: parent.verticalCenter
            color: control.ink
            trackColor: Qt.rgba(control.ink.r, control.ink.g, control.ink.b, 0.3)
        }
    }

    background: ButtonFill {
        kind: control.kind
        radius: control.radius
        hovered: control.hovered && !control.busy
        pressed: control.down && !control.busy
    }

    MouseArea {
        anchors.fill: parent
        enabled: control.busy
        visible: enabled
    }

    FocusRing {
        target: control
    }

    ToolTip {
        text: control.enabled ? control.toolTip : control.disabledReason
        shortcutText: control.enabled ? control.shortcutText : ""
        visible: control.hovered && text !== ""
    }
}
