import QtQuick
import Quillon

/// What a folder without rules shows in their place.
Item {
    readonly property Item newRule: newRuleButton

    height: column.implicitHeight + Theme.s12 + (suggestions.visible ? suggestions.height + Theme.s8 : 0)

    EmptyState {
        id: column
        width: parent.width
        y: Theme.s12
        title: qsTr("No rules yet")
        text: qsTr("Nothing in %1 moves until it has a rule. Start from a preset, or tell Dobbin what you’d like.").arg(App.page.name)

        drawing: Component {
            Item {
                width: 200
                height: 122
                Accessible.ignored: true

                Repeater {
                    model: [[32, 0, 136, 0.35], [17, 20, 166, 0.7]]

                    Rectangle {
                        required property var modelData
                        x: modelData[0]
                        y: modelData[1]
                        width: modelData[2]
                        height: 40
                        radius: 10
                        opacity: modelData[3]
                        color: Theme.card
                        border.width: 1
                        border.color: Theme.line
                    }
                }

                Card {
                    y: 48
                    width: 200
                    height: 50

                    FolderTile {
                        x: Theme.s3
                        anchors.verticalCenter: parent.verticalCenter
                        size: 28
                        tint: App.page.tint
                        symbol: App.page.symbol
                    }

                    Rectangle {
                        x: 51
                        y: 15
                        width: 64
                        height: 6
                        radius: 3
                        color: Theme.line
                    }

                    Rectangle {
                        x: 51
                        y: 27
                        width: 85
                        height: 6
                        radius: 3
                        color: Theme.hover
                    }

                    Rectangle {
                        x: 152
                        anchors.verticalCenter: parent.verticalCenter
                        width: 34
                        height: 20
                        radius: 10
                        color: Theme.accent

                        Rectangle {
                            x: 16
                            y: 2
                            width: 16
                            height: 16
                            radius: 8
                            color: Theme.knobOn
                        }
                    }
                }
            }
        }

        Button {
            iconName: "view-list-icons"
            text: qsTr("Presets")
            shortcutText: "Ctrl+Shift+P"
            onClicked: App.presets.open(App.page.folderID)
        }

        Button {
            id: newRuleButton
            kind: "primary"
            iconName: "list-add"
            text: qsTr("New Rule")
            shortcutText: "Ctrl+N"
            onClicked: App.editor.create(App.page.folderID)
        }
    }

    SuggestionRows {
        id: suggestions
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: column.bottom
        anchors.topMargin: Theme.s8
        width: Math.min(460, parent.width)
    }
}
