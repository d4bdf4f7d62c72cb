import QtQuick
import QtQuick.Layouts
import Quillon

/// The ready-made rules.
Sheet {
    id: sheet

    title: qsTr("Presets")
    caption: qsTr("Ready-made rules for %1. Change them however you like afterwards.").arg(App.presets.folderName)
    sheetWidth: 720
    sheetHeight: Theme.scaled(412)
    scrolls: true
    primary: doneButton
    tile: Component {
        FolderTile {
            tint: App.presets.tint
            symbol: App.presets.symbol
        }
    }
    onCloseRequested: App.sheets.close()
    Component.onCompleted: focusNext()

    /// The first that can be added.
    function focusNext() {
        for (let i = 0; i < cards.count; ++i)
            if (!cards.itemAt(i).isAdded)
                return cards.itemAt(i).takeFocus();
        doneButton.forceActiveFocus(Qt.TabFocusReason);
    }

    Grid {
        id: grid
        width: parent.width
        columns: 2
        spacing: 10
        bottomPadding: Theme.s1
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Presets")

        Repeater {
            id: cards
            model: App.presets

            PresetCard {
                width: (grid.width - grid.spacing) / 2
                onAdded: sheet.focusNext()
            }
        }
    }

    note: Label {
        Layout.fillWidth: true
        text: qsTr("New rules go to the bottom of the list, where they run last.")
        style: Theme.caption
        color: Theme.text2
    }

    footer: Button {
        id: doneButton
        kind: "primary"
        text: qsTr("Done")
        onClicked: sheet.closeRequested()
    }
}
