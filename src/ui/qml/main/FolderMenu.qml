import QtQuick
import QtQml.Models
import Quillon

/// Everything that can be set for a folder.
Menu {
    id: menu

    implicitWidth: 250

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
                checkable: true
                checked: App.page.timing === index
                onTriggered: {
                    App.page.timing = index;
                    checked = Qt.binding(() => App.page.timing === index);
                }
            }
            onObjectAdded: (index, object) => timings.insertItem(index, object)
            onObjectRemoved: (index, object) => timings.removeItem(object)
        }
    }

    MenuItem {
        text: qsTr("Include subfolders")
        checkable: true
        checked: App.page.isRecursive
        onTriggered: {
            App.page.isRecursive = checked;
            checked = Qt.binding(() => App.page.isRecursive);
        }
    }

    MenuItem {
        text: qsTr("Only new files")
        checkable: true
        checked: App.page.onlyNewFiles
        onTriggered: {
            App.page.onlyNewFiles = checked;
            checked = Qt.binding(() => App.page.onlyNewFiles);
        }
    }

    MenuItem {
        text: qsTr("Skip online-only files")
        checkable: true
        checked: App.page.skipsOnlineOnly
        onTriggered: {
            App.page.skipsOnlineOnly = checked;
            checked = Qt.binding(() => App.page.skipsOnlineOnly);
        }
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
                checked: App.page.tint === index
                onTriggered: {
                    App.page.setTint(index);
                    checked = Qt.binding(() => App.page.tint === index);
                }
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
                checkable: true
                checked: App.page.symbol === modelData.name
                onTriggered: {
                    App.page.setSymbol(modelData.name);
                    checked = Qt.binding(() => App.page.symbol === modelData.name);
                }
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
