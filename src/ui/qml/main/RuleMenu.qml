import QtQuick
import QtQml.Models
import Quillon

/// What can be done with a rule: the one that it was opened for, whatever its card shows by then.
Menu {
    id: menu

    property Item list
    property string key
    property int index: -1
    readonly property string folderID: App.page.folderID

    implicitWidth: Math.max(220, contentWidthOfItems + leftPadding + rightPadding)

    onFolderIDChanged: close()

    function openFor(card, anchor, x, y) {
        key = card.key;
        index = card.index;
        popup(anchor, x, y);
    }

    function showCopies() {
        currentIndex = 2;
        copies.open();
        copies.goToEnd(1);
    }

    MenuItem {
        text: qsTr("Edit…")
        iconName: "document-edit"
        shortcutText: qsTr("Enter")
        onTriggered: App.editor.edit(App.page.folderID, menu.key)
    }

    MenuItem {
        text: qsTr("Duplicate")
        iconName: "edit-copy"
        shortcutText: "Ctrl+D"
        onTriggered: App.page.rules.duplicate(menu.key)
    }

    CopyMenu {
        id: copies
        title: qsTr("Copy to")
        iconName: "folder-open"
        enabled: App.page.otherFolders.length > 0
        key: menu.key
    }

    MenuDivider {}

    MenuItem {
        text: qsTr("Move Up")
        iconName: "go-up"
        shortcutText: qsTr("Alt+Up")
        enabled: menu.index > 0
        onTriggered: App.page.rules.moveBy(menu.key, -1)
    }

    MenuItem {
        text: qsTr("Move Down")
        iconName: "go-down"
        shortcutText: qsTr("Alt+Down")
        enabled: menu.index < menu.list.count - 1
        onTriggered: App.page.rules.moveBy(menu.key, 1)
    }

    MenuDivider {}

    MenuItem {
        text: qsTr("Delete")
        iconName: "user-trash"
        shortcutText: qsTr("Del")
        destructive: true
        onTriggered: App.page.rules.remove(menu.key)
    }
}
