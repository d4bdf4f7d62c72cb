import QtQuick
import Quillon

/// The rule as a sentence, and what it would catch now or what it lacks.
Rectangle {
    id: bar

    property QtObject editor
    readonly property QtObject probe: editor.probe
    readonly property bool isComplete: editor.warnings.length === 0
    property bool isOpen: false

    implicitHeight: column.implicitHeight + 20
    height: implicitHeight
    color: Theme.accentSoft

    Divider {
        width: parent.width
        opacity: 0.5
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
            width: parent.width
            condition: bar.editor.conditionText
            action: bar.editor.actionText
            maximumLineCount: 4
            elide: Text.ElideRight
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
