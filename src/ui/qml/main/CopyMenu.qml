import QtQuick
import QtQml.Models
import Quillon

/// The folders that a rule can be copied to.
Menu {
    id: menu

    property string key
    /// There may be many of them, and they change with every folder that is selected: their items are
    /// made when they are first wanted.
    property bool isFilled: false

    onAboutToShow: isFilled = true

    Connections {
        target: App.page
        function onOtherFoldersChanged() {
            if (!menu.visible)
                menu.isFilled = false;
        }
    }

    Instantiator {
        active: menu.isFilled
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
