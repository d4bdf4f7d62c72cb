import QtQuick
import QtQuick.Templates as T

/// One line of text. `edited` comes for what the user typed, not for a text that was set.
FocusScope {
    id: field

    property alias text: input.text
    property string placeholder
    property string label
    property string errorText
    /// False where the error is said elsewhere.
    property bool showsError: true
    property string iconName
    property bool monospaced: false
    property bool inRow: false
    /// A password or key.
    property bool hidden: false
    property alias input: input
    /// Small things at the field's end.
    property alias trailing: trailing.data

    signal edited(string text)
    signal accepted

    implicitWidth: 200
    implicitHeight: column.implicitHeight
    opacity: enabled ? 1 : Theme.disabledOpacity

    function selectAll() {
        input.selectAll();
    }

    function insert(words) {
        const at = input.selectionStart;
        input.remove(input.selectionStart, input.selectionEnd);
        input.insert(at, words);
        field.edited(input.text);
    }

    Column {
        id: column
        width: parent.width

        FieldSurface {
            width: parent.width
            height: field.inRow ? Theme.controlInRow : Theme.control
            active: input.activeFocus
            wrong: field.errorText !== ""

            Icon {
                id: icon
                anchors.left: parent.left
                anchors.leftMargin: 10
                anchors.verticalCenter: parent.verticalCenter
                name: field.iconName
                color: Theme.text3
            }

            T.TextField {
                id: input
                anchors.left: parent.left
                anchors.leftMargin: icon.visible ? 21 : 0
                anchors.right: trailing.left
                height: parent.height
                focus: true
                leftPadding: 11
                rightPadding: 11
                activeFocusOnTab: true
                selectByMouse: true
                clip: contentWidth > width - 22
                verticalAlignment: TextInput.AlignVCenter
                horizontalAlignment: field.monospaced && field.LayoutMirroring.enabled ? TextInput.AlignRight : TextInput.AlignLeft
                echoMode: field.hidden ? TextInput.Password : TextInput.Normal
                color: Theme.text1
                placeholderText: field.placeholder
                placeholderTextColor: Theme.text3
                selectionColor: Theme.accent
                selectedTextColor: Theme.onAccent
                font.family: field.monospaced ? Theme.monospacedFamily : Theme.fontFamily
                font.pixelSize: Theme.body.size
                onTextEdited: field.edited(text)
                onAccepted: field.accepted()

                Accessible.role: Accessible.EditableText
                Accessible.name: field.label
                Accessible.description: field.errorText !== "" ? field.errorText : field.placeholder

                Text {
                    anchors.fill: parent
                    leftPadding: input.leftPadding
                    rightPadding: input.rightPadding
                    verticalAlignment: Text.AlignVCenter
                    visible: input.length === 0 && input.preeditText === ""
                    text: field.placeholder
                    textFormat: Text.PlainText
                    color: Theme.text3
                    font: input.font
                    elide: Text.ElideRight
                    horizontalAlignment: Text.AlignLeft
                    Accessible.ignored: true
                }
            }

            Row {
                id: trailing
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                rightPadding: children.length > 0 ? 6 : 0
                spacing: 4
            }
        }

        FieldError {
            width: parent.width
            text: field.showsError ? field.errorText : ""
        }
    }
}
