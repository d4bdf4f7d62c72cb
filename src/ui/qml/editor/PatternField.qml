import QtQuick
import Quillon

/// A pattern for new names, with its tokens to put in, and what comes of it.
Column {
    id: pattern

    property alias text: input.text
    property var tokens: []
    property string example
    readonly property Item field: input

    signal edited(string text)

    spacing: 6

    Field {
        id: input
        width: parent.width
        inRow: true
        label: qsTr("Pattern")
        onEdited: text => pattern.edited(text)
    }

    Flow {
        width: parent.width
        spacing: 6

        Repeater {
            model: pattern.tokens

            Button {
                required property string modelData
                small: true
                text: modelData
                Accessible.name: qsTr("Insert %1").arg(modelData)
                onClicked: {
                    input.insert(modelData);
                    input.forceActiveFocus(Qt.OtherFocusReason);
                }
            }
        }
    }

    Label {
        width: parent.width
        visible: text !== ""
        text: pattern.example
        style: Theme.caption
        color: Theme.text2
        wrapMode: Text.Wrap
    }
}
