import QtQuick
import Quillon

/// Papers on their way into folders. Decoration, but for its words.
Item {
    id: picture

    property real radius: 0
    readonly property color above: Qt.darker(Theme.tint(1), Theme.isDark ? 1.6 : 1.1)
    readonly property color below: Qt.darker(Theme.tint(1), Theme.isDark ? 2.1 : 1.45)

    clip: true

    Rectangle {
        anchors.fill: parent
        anchors.rightMargin: -radius
        radius: picture.radius
        gradient: Gradient {
            GradientStop {
                position: 0
                color: picture.above
            }
            GradientStop {
                position: 1
                color: picture.below
            }
        }
    }

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        y: picture.height - 270
        width: 760
        height: 760
        radius: 380
        color: Theme.onTint
        opacity: 0.07
    }

    Row {
        x: 32
        y: 20
        spacing: Theme.s2 + 2
        LayoutMirroring.enabled: false

        Glyph {
            anchors.verticalCenter: parent.verticalCenter
            name: "guard"
            size: 20
            color: Theme.onTint
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Quillon")
            style: Theme.heading
            color: Theme.onTint
        }
    }

    Item {
        width: 400
        height: 458
        x: Math.round((parent.width - width) / 2)
        y: Math.round((picture.height - 700) / 2) + 100
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true

        Repeater {
            model: [
                {x: 84, top: 283, bottom: 366},
                {x: 200, top: 262, bottom: 366},
                {x: 318, top: 258, bottom: 362}
            ]

            Column {
                required property var modelData
                x: modelData.x - 1
                y: modelData.top
                spacing: 6

                Repeater {
                    model: Math.floor((modelData.bottom - modelData.top) / 8)

                    Rectangle {
                        width: 2
                        height: 2
                        color: Theme.onTint
                        opacity: 0.6
                    }
                }
            }
        }

        OnboardingPaper {
            x: 62
            y: 28
            width: 92
            height: 114
            rotation: -14
            word: "PDF"
            ink: Theme.tint(4)
        }

        OnboardingPaper {
            x: 233
            y: 9
            width: 82
            height: 102
            rotation: 12
            word: "JPG"
            ink: Theme.tint(6)
        }

        OnboardingPaper {
            x: 150
            y: 114
            width: 100
            height: 124
            rotation: -4
            word: "DOCX"
            ink: Theme.tint(1)
        }

        OnboardingPaper {
            x: 43
            y: 176
            width: 72
            height: 88
            rotation: -20
            word: "DMG"
            ink: Theme.tint(7)
        }

        OnboardingPaper {
            x: 288
            y: 150
            width: 72
            height: 90
            rotation: 16
            word: "ZIP"
            ink: Theme.tint(3)
        }

        Repeater {
            model: [
                {x: 38, tint: 0, icon: "folder-documents"},
                {x: 154, tint: 4, icon: "folder-pictures"},
                {x: 270, tint: 2, icon: "archive-insert"}
            ]

            Item {
                required property var modelData
                x: modelData.x
                y: 384
                width: 92
                height: 74

                Rectangle {
                    width: 38
                    height: 20
                    radius: 6
                    color: Qt.darker(Theme.tint(modelData.tint), Theme.isDark ? 1.25 : 1.05)
                }

                Rectangle {
                    y: 9
                    width: parent.width
                    height: 65
                    radius: 9
                    color: Qt.tint(Theme.tint(modelData.tint), Qt.rgba(1, 1, 1, Theme.isDark ? 0 : 0.14))

                    Icon {
                        anchors.centerIn: parent
                        name: modelData.icon
                        size: 22
                        color: Theme.onTint
                    }
                }
            }
        }
    }

    Label {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Theme.s6
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 52
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        text: qsTr("Rules you can read, undo for every move.")
        color: Theme.onTint
    }
}
