import QtQuick
import QtQuick.Templates as T
import Quillon

/// The question. Enter sends it, Shift+Enter begins a new line, Up in an empty one has the last
/// question again.
FocusScope {
    id: field

    readonly property bool stops: App.chat.isThinking && input.length === 0

    signal sent

    implicitHeight: surface.height

    function send() {
        if (!App.chat.ask(input.text))
            return;
        input.clear();
        sent();
    }

    FieldSurface {
        id: surface
        width: parent.width
        height: Math.max(40, Math.min(input.implicitHeight, Theme.scaled(120)))
        radius: 12
        active: input.activeFocus

        Flickable {
            id: flick
            anchors.fill: parent
            anchors.margins: 1
            anchors.rightMargin: 40
            clip: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            contentWidth: width
            contentHeight: input.height

            T.TextArea {
                id: input
                width: flick.width
                height: Math.max(implicitHeight, flick.height)
                implicitHeight: contentHeight + topPadding + bottomPadding
                focus: true
                topPadding: 10
                bottomPadding: 10
                leftPadding: 14
                rightPadding: 14
                selectByMouse: true
                wrapMode: TextEdit.Wrap
                textFormat: TextEdit.PlainText
                horizontalAlignment: TextEdit.AlignLeft
                color: Theme.text1
                selectionColor: Theme.accent
                selectedTextColor: Theme.onAccent
                placeholderText: hint.text
                placeholderTextColor: Theme.text3
                font.family: Theme.fontFamily
                font.pixelSize: Theme.body.size
                Accessible.role: Accessible.EditableText
                Accessible.name: qsTr("Ask about your files")

                onCursorRectangleChanged: {
                    if (cursorRectangle.y < flick.contentY)
                        flick.contentY = cursorRectangle.y;
                    else if (cursorRectangle.y + cursorRectangle.height + bottomPadding > flick.contentY + flick.height)
                        flick.contentY = cursorRectangle.y + cursorRectangle.height + bottomPadding - flick.height;
                }
                Keys.onPressed: event => {
                    event.accepted = true;
                    if (Keystroke.isEnter(event))
                        field.send();
                    else if (event.key === Qt.Key_Up && event.modifiers === Qt.NoModifier && length === 0 && App.chat.lastQuestion !== "") {
                        text = App.chat.lastQuestion;
                        cursorPosition = length;
                    } else
                        event.accepted = false;
                }
                Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
                Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

                Label {
                    id: hint
                    x: input.leftPadding
                    y: input.topPadding
                    width: input.width - input.leftPadding - input.rightPadding
                    visible: input.length === 0 && input.preeditText === ""
                    text: qsTr("Ask about your files")
                    color: Theme.text3
                    showsTip: false
                    Accessible.ignored: true
                }
            }
        }

        IconButton {
            anchors.right: parent.right
            anchors.rightMargin: 7
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 6
            kind: "quiet"
            width: 28
            height: 28
            radius: Theme.rControl
            fillColor: Theme.hover
            iconName: field.stops ? "media-playback-stop" : "document-send"
            iconSize: 16
            label: field.stops ? qsTr("Stop") : qsTr("Send")
            onClicked: field.stops ? App.chat.stop() : field.send()
        }
    }
}
