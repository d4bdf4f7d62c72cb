import QtQuick
import Quillon

/// The recipes of a clean-up, and beside them every file that they would take.
FocusScope {
    id: review

    function focusFilter() {
        filter.input.forceActiveFocus(Qt.ShortcutFocusReason);
        filter.selectAll();
    }

    Keys.onPressed: event => {
        event.accepted = event.matches(StandardKey.SelectAll);
        if (event.accepted)
            App.cleanup.tickAll();
    }

    Divider {
        width: parent.width
    }

    Rectangle {
        id: side
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.topMargin: 1
        anchors.bottom: parent.bottom
        width: 316
        color: Theme.sidebar

        RecipeList {
            id: recipes
            anchors.fill: parent
            anchors.rightMargin: 1
            focus: true
            onLookedAt: index => files.showRecipe(index)
        }

        Divider {
            vertical: true
            anchors.right: parent.right
            height: parent.height
        }
    }

    Item {
        id: top
        anchors.left: side.right
        anchors.right: parent.right
        y: 1
        height: Theme.scaled(44)

        Label {
            anchors.left: parent.left
            anchors.leftMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Review every file")
            style: Theme.bodyMedium
        }

        Field {
            id: filter
            anchors.right: parent.right
            anchors.rightMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            width: 190
            inRow: true
            iconName: "search"
            placeholder: qsTr("Filter files")
            label: qsTr("Filter files")
            text: App.cleanup.filterText
            onEdited: text => App.cleanup.filterText = text
            Keys.onDownPressed: files.forceActiveFocus(Qt.TabFocusReason)
        }

        Divider {
            width: parent.width
            anchors.bottom: parent.bottom
        }
    }

    Item {
        anchors.left: side.right
        anchors.right: parent.right
        anchors.top: top.bottom
        anchors.bottom: parent.bottom

        CleanupFileList {
            id: files
            anchors.fill: parent
            visible: count > 0
        }

        ScrollBar {
            flickable: files
        }

        LookState {
            anchors.fill: parent
            isLooking: App.cleanup.state === "looking"
            lookingText: qsTr("Looking through %1…").arg(App.cleanup.folderName)
            hasFailed: App.cleanup.state === "failed"
            emptyText: App.cleanup.emptyText
            onAgainAsked: {
                recipes.forceActiveFocus(Qt.OtherFocusReason);
                App.cleanup.look();
            }
        }
    }
}
