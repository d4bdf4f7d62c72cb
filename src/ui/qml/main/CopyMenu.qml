import QtQuick
import QtQml.Models
import Quillon

/// The folders that a rule can be copied to.
Menu {
    id: menu

    property string key

    Instantiator {
        model: App.page.otherFolders
        delegate: MenuItem {
            required property var modelData
            text: modelData.name
            onTriggered: App.folders.copyRule(menu.key, modelData.key)
        }
        onObjectAdded: (index, object) => menu.insertItem(index, object)
        onObjectRemoved: (index, object) => menu.removeItem(object)
    }
}
