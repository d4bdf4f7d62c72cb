import QtQuick
import QtQuick.Layouts
import Quillon

/// The ready-made rules.
Sheet {
    id: sheet

    title: qsTr("Presets")
    caption: qsTr("Ready-made rules for %1. Change them however you like afterwards.").arg(App.presets.folderName)
    sheetWidth: 720
    sheetHeight: 412
    scrolls: true
    primary: doneButton
    tile: Component {
        FolderTile {
            tint: App.presets.tint
            symbol: App.presets.symbol
        }
    }
    onCloseRequested: App.sheets.close()
    Component.onCompleted: focusNext(Qt.PopupFocusReason)

    /// The first that can be added.
    function focusNext(reason) {
        for (let i = 0; i < cards.count; ++i)
            if (!cards.itemAt(i).isAdded)
                return cards.itemAt(i).takeFocus(reason);
        doneButton.forceActiveFocus(reason);
    }

    Grid {
        id: grid
        width: parent.width
        columns: 2
        spacing: 10
        bottomPadding: Theme.s1
        /// All are as high as the highest.
        readonly property real cardHeight: {
            let highest = 0;
            for (let i = 0; i < cards.count; ++i)
                highest = Math.max(highest, cards.itemAt(i)?.implicitHeight ?? 0);
            return highest;
        }

        Accessible.role: Accessible.List
        Accessible.name: qsTr("Presets")

        Repeater {
            id: cards
            model: App.presets

            PresetCard {
                width: (grid.width - grid.spacing) / 2
                height: grid.cardHeight
                onAdded: sheet.focusNext(Qt.TabFocusReason)
            }
        }
    }

    note: Label {
        Layout.fillWidth: true
        text: qsTr("New rules go to the bottom of the list, where they run last.")
        style: Theme.caption
        color: Theme.text2
        wrapMode: Text.Wrap
    }

    footer: Button {
        id: doneButton
        kind: "primary"
        Layout.minimumWidth: 74
        text: qsTr("Done")
        onClicked: sheet.closeRequested()
    }
}
