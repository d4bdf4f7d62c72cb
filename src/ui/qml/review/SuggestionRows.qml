import QtQuick
import Quillon

/// The rules that Dobbin offers for the selected folder; nothing where there are none.
Column {
    id: rows

    visible: App.suggestions.count > 0
    spacing: Theme.s2
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Dobbin noticed")

    Row {
        leftPadding: 3
        spacing: 7

        Glyph {
            anchors.verticalCenter: parent.verticalCenter
            name: "horseshoe"
            size: 12
            color: Theme.dobbin
        }

        Label {
            text: qsTr("Dobbin noticed")
            style: Theme.captionStrong
            color: Theme.dobbin
            Accessible.role: Accessible.Heading
        }
    }

    Card {
        width: parent.width
        height: list.height

        Column {
            id: list
            width: parent.width

            Repeater {
                model: App.suggestions

                SuggestionCard {
                    width: list.width
                    isFirst: index === 0
                }
            }
        }
    }
}
