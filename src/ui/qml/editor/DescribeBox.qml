import QtQuick
import Quillon

/// A sentence for Dobbin to make the rule of, and what he says about it.
Rectangle {
    id: box

    property QtObject dobbin
    property bool hasOffer: false
    readonly property bool canWrite: dobbin.unavailable === ""

    signal offerTaken
    signal offerDropped

    implicitHeight: column.implicitHeight + 22
    radius: Theme.rCard
    color: Theme.dobbinSoft
    border.width: 1
    border.color: Theme.dobbinLine

    function focusField() {
        input.forceActiveFocus(Qt.ShortcutFocusReason);
    }

    Column {
        id: column
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.leftMargin: 15
        anchors.rightMargin: 15
        anchors.topMargin: 11
        spacing: Theme.s2

        Row {
            width: parent.width
            spacing: Theme.s2

            Glyph {
                anchors.verticalCenter: parent.verticalCenter
                name: "horseshoe"
                size: 14
                color: Theme.dobbin
            }

            Label {
                text: qsTr("Describe with Dobbin")
                style: Theme.captionStrong
                color: Theme.dobbin
            }
        }

        Item {
            width: parent.width
            height: Theme.control

            Field {
                id: input
                anchors.left: parent.left
                anchors.right: draftButton.left
                anchors.rightMargin: Theme.s2
                enabled: box.canWrite
                label: qsTr("Describe with Dobbin")
                placeholder: qsTr("Move PDFs with invoice in the name to Receipts")
                text: box.dobbin.sentence
                onEdited: text => box.dobbin.sentence = text
                Keys.onPressed: event => {
                    event.accepted = Keystroke.isEnter(event);
                    if (event.accepted)
                        box.dobbin.draft();
                }
            }

            Button {
                id: draftButton
                anchors.right: parent.right
                kind: "dobbin"
                text: qsTr("Draft Rule")
                busy: box.dobbin.isBusy
                enabled: box.canWrite && input.text.trim() !== ""
                disabledReason: box.canWrite ? qsTr("Write what the rule should do first") : box.dobbin.unavailable
                onClicked: box.dobbin.draft()
            }
        }

        Line {
            visible: box.dobbin.isBusy
            glyph: "horseshoe"
            text: qsTr("Dobbin is thinking")
            tint: Theme.dobbin

            Button {
                anchors.verticalCenter: parent.verticalCenter
                kind: "quiet"
                small: true
                text: qsTr("Stop")
                onClicked: box.dobbin.stop()
            }
        }

        Line {
            visible: box.hasOffer
            iconName: "help-about"
            text: qsTr("Dobbin’s rule is ready, but you have changed this one meanwhile.")
            tint: Theme.dobbin

            Button {
                anchors.verticalCenter: parent.verticalCenter
                small: true
                text: qsTr("Use his")
                onClicked: box.offerTaken()
            }

            Button {
                anchors.verticalCenter: parent.verticalCenter
                kind: "quiet"
                small: true
                text: qsTr("Keep mine")
                onClicked: box.offerDropped()
            }
        }

        Line {
            visible: text !== "" && !box.hasOffer
            iconName: "help-about"
            text: box.dobbin.note
            tint: Theme.dobbin
        }

        Repeater {
            model: box.dobbin.warnings

            Line {
                required property string modelData
                glyph: "alert"
                text: modelData
                tint: Theme.warnIcon
                ink: Theme.warn
            }
        }

        Line {
            visible: text !== ""
            glyph: "alert"
            text: box.dobbin.error
            tint: Theme.error
            ink: Theme.error
            isAlert: true
        }

        Line {
            visible: !box.canWrite
            iconName: "help-about"
            text: box.dobbin.unavailable
            tint: Theme.dobbin

            Button {
                anchors.verticalCenter: parent.verticalCenter
                small: true
                text: qsTr("Dobbin Settings…")
                onClicked: App.settings.open("dobbin")
            }
        }
    }

    component Line: Item {
        id: line

        property string iconName
        property string glyph
        property string text
        property color tint
        property color ink: Theme.text2
        property bool isAlert: false
        default property alias buttons: row.data

        width: column.width
        height: Math.max(words.implicitHeight, row.height)

        Symbol {
            id: symbol
            y: (row.height > 0 ? line.height - height : Theme.caption.lineHeight - height) / 2
            anchors.left: parent.left
            iconName: line.iconName
            glyph: line.glyph
            size: 14
            color: line.tint
        }

        Label {
            id: words
            anchors.left: symbol.right
            anchors.leftMargin: 6
            anchors.right: row.left
            anchors.rightMargin: Theme.s2
            anchors.verticalCenter: row.height > 0 ? parent.verticalCenter : undefined
            text: line.text
            style: Theme.caption
            color: line.ink
            wrapMode: Text.Wrap
            Accessible.role: line.isAlert ? Accessible.AlertMessage : Accessible.StaticText
        }

        Row {
            id: row
            anchors.right: parent.right
            spacing: Theme.s2
        }
    }
}
