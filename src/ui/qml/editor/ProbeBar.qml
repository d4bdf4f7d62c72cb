import QtQuick
import Quillon

/// The rule as a sentence, and what it would catch now or what it lacks.
Rectangle {
    id: bar

    property QtObject editor
    readonly property QtObject probe: editor.probe
    readonly property bool isComplete: editor.warnings.length === 0
    property bool isOpen: false
    /// What is longer scrolls.
    property int highest: 168

    implicitHeight: Math.min(flick.contentHeight, highest)
    height: implicitHeight
    color: Theme.accentSoft

    Divider {
        width: parent.width
        opacity: 0.5
    }

    Flickable {
        id: flick
        anchors.fill: parent
        contentWidth: width
        contentHeight: column.implicitHeight + 20
        interactive: contentHeight > height
        clip: interactive
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: interactive
        Accessible.role: Accessible.Pane
        Accessible.name: summary.Accessible.name
        Keys.onUpPressed: scrollTo(contentY - 2 * Theme.caption.lineHeight)
        Keys.onDownPressed: scrollTo(contentY + 2 * Theme.caption.lineHeight)

        function scrollTo(y) {
            contentY = Math.max(0, Math.min(contentHeight - height, y));
        }

        Column {
            id: column
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.leftMargin: Theme.s6
            anchors.rightMargin: Theme.s6
            anchors.topMargin: 10
            spacing: 3

            RuleSummary {
                id: summary
                width: parent.width
                condition: bar.editor.conditionText
                action: bar.editor.actionText
            }

            Repeater {
                model: bar.editor.warnings

                MarkedLine {
                    required property string modelData
                    width: column.width
                    glyph: "alert"
                    tint: Theme.warnIcon
                    text: modelData
                    ink: Theme.warn
                }
            }

            DisclosureLine {
                anchors.left: parent.left
                visible: bar.isComplete
                text: bar.probe.text
                isError: bar.probe.isError
                canOpen: bar.probe.names.length > 0
                isOpen: bar.isOpen
                onToggled: bar.isOpen = !bar.isOpen
            }

            Flow {
                width: parent.width
                visible: bar.isComplete && bar.isOpen && bar.probe.names.length > 0
                spacing: Theme.s3

                Repeater {
                    model: bar.probe.names

                    Label {
                        required property string modelData
                        width: Math.min(implicitWidth, 230)
                        text: modelData
                        style: Theme.caption
                        color: Theme.text2
                        elide: Text.ElideMiddle
                    }
                }
            }
        }
    }

    RevealFocus {
        view: flick
    }

    ScrollBar {
        flickable: flick
    }

    FocusRing {
        target: flick
        targetRadius: 0
        anchors.margins: Theme.focusGap
        shown: flick.activeFocus
    }

    Announcement {
        id: announcement

        Connections {
            target: bar.probe
            function onSpokenChanged() {
                if (bar.isComplete && bar.probe.spoken !== "")
                    announcement.say(bar.probe.spoken);
            }
        }
    }
}
