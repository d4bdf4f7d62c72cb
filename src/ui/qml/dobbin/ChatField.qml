import QtQuick
import Quillon

/// The question. Enter sends it, Shift+Enter begins a new line, Up in an empty one has the last
/// question again.
TextBox {
    id: field

    readonly property bool stops: App.chat.isThinking && input.length === 0

    signal sent

    label: qsTr("Ask about your files")
    placeholder: label
    minimumLines: 1
    maximumLines: 6
    sidePadding: 14
    endPadding: 11
    radius: 12

    function send() {
        if (!App.chat.ask(text))
            return;
        input.clear();
        sent();
    }

    Keys.onPressed: event => {
        event.accepted = true;
        if (Keystroke.isEnter(event))
            send();
        else if (event.key === Qt.Key_Up && event.modifiers === Qt.NoModifier && input.length === 0 && App.chat.lastQuestion !== "") {
            text = App.chat.lastQuestion;
            input.cursorPosition = input.length;
        } else
            event.accepted = false;
    }

    trailing: IconButton {
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
