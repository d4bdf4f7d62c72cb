import QtQuick
import Quillon

/// In place of a list of files: that they are looked for, that there are none, or that they can't be read.
Item {
    id: state

    property bool isLooking: false
    property string lookingText
    property bool hasFailed: false
    property string emptyText

    signal againAsked

    Row {
        anchors.centerIn: parent
        visible: state.isLooking
        spacing: Theme.s2

        Spinner {
            anchors.verticalCenter: parent.verticalCenter
        }

        Label {
            text: state.lookingText
            color: Theme.text2
        }
    }

    EmptyState {
        anchors.centerIn: parent
        width: parent.width - 2 * Theme.s6
        visible: state.hasFailed
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
            onClicked: state.againAsked()
        }
    }

    Label {
        anchors.centerIn: parent
        width: Math.min(implicitWidth, parent.width - 2 * Theme.s6)
        visible: text !== ""
        text: state.emptyText
        style: Theme.lead
        color: Theme.text2
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
    }
}
