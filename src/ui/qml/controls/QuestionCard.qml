import QtQuick
import Quillon

/// Something that is asked before it goes on, over all that it fills.
FocusScope {
    id: card

    property QtObject question
    property Item before

    visible: question.isOpen
    z: 10
    Accessible.role: Accessible.Dialog
    Accessible.name: question.title
    Accessible.description: question.text

    onVisibleChanged: {
        if (visible) {
            before = FocusReturn.openerOf(Window.activeFocusItem);
            noButton.forceActiveFocus(Qt.TabFocusReason);
        } else {
            FocusReturn.giveTo(before);
            before = null;
        }
    }

    Keys.onEscapePressed: question.decline()
    Keys.onPressed: event => event.accepted = true

    Scrim {
        anchors.fill: parent
    }

    Rectangle {
        anchors.centerIn: parent
        width: Math.min(420, parent.width - 48)
        height: column.implicitHeight + 2 * Theme.s6
        radius: Theme.rSheet
        color: Theme.card
        border.width: 1
        border.color: Theme.line

        Shadow {
            elevation: 3
        }

        Column {
            id: column
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: Theme.s6
            spacing: Theme.s3

            Label {
                width: parent.width
                text: card.question.title
                style: Theme.heading
                wrapMode: Text.Wrap
            }

            Label {
                width: parent.width
                visible: text !== ""
                text: card.question.text
                color: Theme.text2
                wrapMode: Text.Wrap
            }

            Row {
                anchors.right: parent.right
                topPadding: Theme.s2
                spacing: Theme.s2

                Button {
                    id: yesButton
                    visible: text !== ""
                    kind: card.question.isDestructive ? "destructive" : "secondary"
                    text: card.question.yes
                    onClicked: card.question.agree()
                    KeyNavigation.tab: noButton
                    KeyNavigation.backtab: noButton
                }

                Button {
                    id: noButton
                    kind: "primary"
                    text: card.question.no
                    onClicked: card.question.decline()
                    KeyNavigation.tab: yesButton
                    KeyNavigation.backtab: yesButton
                }
            }
        }
    }
}
