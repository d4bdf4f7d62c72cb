import QtQuick
import Quillon

/// A number, and what it counts.
Item {
    id: number

    property alias text: input.text
    property alias label: input.label
    property string errorText
    property string tail
    default property alias more: row.data
    readonly property Item field: input

    signal edited(string text)
    signal finished

    implicitHeight: column.implicitHeight

    Column {
        id: column
        width: parent.width

        Row {
            id: row
            width: parent.width
            spacing: Theme.s2

            Field {
                id: input
                width: Theme.scaled(84)
                inRow: true
                errorText: number.errorText
                showsError: false
                input.inputMethodHints: Qt.ImhFormattedNumbersOnly
                onEdited: text => number.edited(text)

                Connections {
                    target: input.input

                    function onEditingFinished() {
                        number.finished();
                    }
                }
            }

            Label {
                height: Theme.controlInRow
                visible: text !== ""
                text: number.tail
                color: Theme.text2
            }
        }

        FieldError {
            width: parent.width
            text: number.errorText
        }
    }
}
