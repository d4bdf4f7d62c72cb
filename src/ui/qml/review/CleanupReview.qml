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

        Row {
            anchors.centerIn: parent
            visible: App.cleanup.state === "looking"
            spacing: Theme.s2

            Spinner {
                anchors.verticalCenter: parent.verticalCenter
            }

            Label {
                text: qsTr("Looking through %1…").arg(App.cleanup.folderName)
                color: Theme.text2
            }
        }

        EmptyState {
            anchors.centerIn: parent
            width: parent.width - 2 * Theme.s6
            visible: App.cleanup.state === "failed"
            title: qsTr("Quillon can’t read this folder.")
            drawing: Component {
                Tile {
                    size: 44
                    iconName: "lock"
                }
            }

            Button {
                text: qsTr("Try Again")
                iconName: "view-refresh"
                onClicked: App.cleanup.look()
            }
        }

        Label {
            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width - 2 * Theme.s6)
            visible: text !== ""
            text: App.cleanup.emptyText
            style: Theme.lead
            color: Theme.text2
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
