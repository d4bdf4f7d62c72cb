import QtQuick
import QtQml.Models
import Quillon

/// Everything that can be set for a folder.
Menu {
    id: menu

    implicitWidth: Math.max(250, Math.min(Theme.scaled(320), contentWidthOfItems + leftPadding + rightPadding))

    Menu {
        id: timings
        title: qsTr("When to tidy")
        iconName: "clock"

        Instantiator {
            model: App.page.timings
            delegate: MenuItem {
                required property int index
                required property string modelData
                text: modelData
                isChoice: true
                isChosen: App.page.timing === index
                onTriggered: App.page.timing = index
            }
            onObjectAdded: (index, object) => timings.insertItem(index, object)
            onObjectRemoved: (index, object) => timings.removeItem(object)
        }
    }

    MenuItem {
        text: qsTr("Include subfolders")
        isChoice: true
        isChosen: App.page.isRecursive
        onTriggered: App.page.isRecursive = !isChosen
    }

    MenuItem {
        text: qsTr("Only new files")
        isChoice: true
        isChosen: App.page.onlyNewFiles
        onTriggered: App.page.onlyNewFiles = !isChosen
    }

    MenuItem {
        text: qsTr("Skip online-only files")
        isChoice: true
        isChosen: App.page.skipsOnlineOnly
        onTriggered: App.page.skipsOnlineOnly = !isChosen
    }

    MenuDivider {}

    Menu {
        id: colours
        title: qsTr("Colour")
        iconName: "fill-color"

        Instantiator {
            model: App.page.tintNames
            delegate: TintItem {
                tint: index
                text: modelData
                isChosen: App.page.tint === index
                onTriggered: App.page.setTint(index)
            }
            onObjectAdded: (index, object) => colours.insertItem(index, object)
            onObjectRemoved: (index, object) => colours.removeItem(object)
        }
    }

    Menu {
        id: symbols
        title: qsTr("Icon")
        iconName: "folder"

        Instantiator {
            model: App.page.symbols
            delegate: MenuItem {
                required property var modelData
                text: modelData.label
                iconName: modelData.name
                isChoice: true
                isChosen: App.page.symbol === modelData.name
                onTriggered: App.page.setSymbol(modelData.name)
            }
            onObjectAdded: (index, object) => symbols.insertItem(index, object)
            onObjectRemoved: (index, object) => symbols.removeItem(object)
        }
    }

    MenuDivider {}

    MenuItem {
        text: qsTr("Import Rules…")
        iconName: "document-import"
        onTriggered: App.page.importRules()
    }

    MenuItem {
        text: qsTr("Export Rules…")
        iconName: "document-export"
        enabled: App.page.hasRules
        onTriggered: App.page.exportRules()
    }

    MenuDivider {}

    MenuItem {
        text: qsTr("Remove %1…").arg(App.page.name)
        iconName: "list-remove"
        destructive: true
        onTriggered: App.folders.remove(App.page.folderID)
    }
}
