import QtQuick
import QtQuick.Templates as T

/// kind: primary, secondary, dobbin, plain (without a surface), quiet (so, too, but paler), link or
/// destructive.
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
    readonly property color ink: enabled ? fullInk : Theme.faded(fullInk, Theme.bg)
    property color fullInk: kind === "primary" ? Theme.onAccent : kind === "dobbin" ? Theme.onDobbin : kind === "link" ? Theme.accent : kind === "destructive" ? Theme.error : kind === "quiet" ? Theme.text2 : Theme.text1
    readonly property var style: small ? (filled ? Theme.captionStrong : Theme.captionMedium) : filled ? Theme.bodyStrong : Theme.bodyMedium
    readonly property bool hasSymbol: iconName !== "" || glyph !== ""
    readonly property int symbolSize: small ? 14 : 16
    readonly property int symbolRoom: !hasSymbol ? 0 : text === "" ? symbolSize : symbolSize + 7
    readonly property int chevronRoom: opensMore ? 18 : 0
    readonly property int radius: small ? Theme.rTile : Theme.rControl

    implicitHeight: kind === "link" || small ? Theme.controlSmall : large ? Theme.controlLarge : Theme.control
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    leftPadding: kind === "link" || small ? 10 : 13
    rightPadding: leftPadding
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    containmentMask: hitArea
    Keys.onPressed: event => Keystroke.press(event, control)

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: enabled ? "" : disabledReason
    Accessible.onPressAction: if (!busy) clicked()

    HitArea {
        id: hitArea
    }

    contentItem: Item {
        implicitWidth: control.symbolRoom + Math.ceil(measure.advanceWidth) + control.chevronRoom
        implicitHeight: words.implicitHeight

        Item {
            anchors.centerIn: parent
            width: Math.min(parent.width, parent.implicitWidth)
            height: parent.height

            Symbol {
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                visible: control.hasSymbol && !control.busy
                iconName: control.iconName
                glyph: control.glyph
                size: control.symbolSize
                color: control.ink
            }

            Words {
                id: words
                anchors.left: parent.left
                anchors.leftMargin: control.symbolRoom
                anchors.right: parent.right
                anchors.rightMargin: control.chevronRoom
                anchors.verticalCenter: parent.verticalCenter
                text: control.text
                style: control.style
                color: control.ink
                font.underline: control.kind === "link" && control.hovered
                opacity: control.busy && !control.hasSymbol ? 0 : 1
                Accessible.ignored: true
            }

            Loader {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                active: control.opensMore
                sourceComponent: Glyph {
                    name: "chevron"
                    rotation: control.mirrored ? 90 : -90
                    size: 10
                    color: control.ink
                }
            }

            Loader {
                x: control.hasSymbol === control.mirrored ? parent.width - width : 0
                anchors.horizontalCenter: control.hasSymbol ? undefined : parent.horizontalCenter
                anchors.verticalCenter: parent.verticalCenter
                active: control.busy
                sourceComponent: Spinner {
                    size: 14
                    color: control.ink
                    trackColor: Qt.rgba(control.ink.r, control.ink.g, control.ink.b, 0.3)
                }
            }
        }
    }

    TextMetrics {
        id: measure
        text: control.text
        font: words.font
    }

    background: ButtonFill {
        opacity: control.enabled ? 1 : Theme.disabledOpacity
        kind: control.kind
        radius: control.radius
        hovered: control.hovered && control.enabled && !control.busy
        pressed: control.down && !control.busy
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
        text: control.toolTip !== "" || control.shortcutText === "" ? control.toolTip : control.text
        shortcutText: control.shortcutText
    }

    DisabledTip {
        reason: control.disabledReason
    }
}
