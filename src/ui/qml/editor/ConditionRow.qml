import QtQuick
import Quillon

/// One condition: what it looks at, how it compares, and with what.
EditorRow {
    id: row

    required joiner
    required property int attribute
    required property var operators
    required property int operatorIndex
    required property string editor
    required property string value
    required property string placeholder
    required property string tail
    required property int choice
    required property int unit
    required property string error
    property QtObject calendar
    readonly property QtObject model: list ? list.rows : null

    gripInMargin: true
    first: attributePicker
    valueItem: loader.item ? loader.item.field : null

    PillPicker {
        id: attributePicker
        anchors.left: parent.left
        inRow: true
        width: Math.max(150, implicitWidth)
        label: qsTr("Attribute")
        model: row.model.attributes
        currentIndex: row.attribute
        onActivated: index => row.model.setAttribute(row.index, index)
    }

    PillPicker {
        id: operatorPicker
        anchors.left: attributePicker.right
        anchors.leftMargin: Theme.s2
        inRow: true
        width: Math.max(168, implicitWidth)
        label: qsTr("Operator")
        model: row.operators
        currentIndex: row.operatorIndex
        onActivated: index => row.model.setOperator(row.index, index)
    }

    Loader {
        id: loader
        anchors.left: operatorPicker.right
        anchors.leftMargin: Theme.s2
        anchors.right: parent.right
        sourceComponent: ({
                "text": textEditor,
                "question": textEditor,
                "days": daysEditor,
                "size": sizeEditor,
                "date": dateEditor,
                "kind": kindEditor,
                "tag": tagEditor
            })[row.editor]
    }

    Component {
        id: textEditor

        Field {
            readonly property Item field: this
            inRow: true
            label: qsTr("Value")
            text: row.value
            placeholder: row.placeholder
            errorText: row.error
            onEdited: text => row.model.setValue(row.index, text)
        }
    }

    Component {
        id: daysEditor

        NumberField {
            text: row.value
            errorText: row.error
            label: qsTr("Days")
            tail: row.tail
            onEdited: text => row.model.setValue(row.index, text)
            onFinished: row.model.finishValue(row.index)
        }
    }

    Component {
        id: sizeEditor

        NumberField {
            text: row.value
            errorText: row.error
            label: qsTr("Size")
            onEdited: text => row.model.setValue(row.index, text)
            onFinished: row.model.finishValue(row.index)

            Segments {
                label: qsTr("Unit")
                model: row.model.units
                currentIndex: row.unit
                onActivated: index => row.model.setUnit(row.index, index)
            }
        }
    }

    Component {
        id: dateEditor

        DateField {
            text: row.value
            placeholder: row.placeholder
            errorText: row.error
            calendar: row.calendar
            onEdited: text => row.model.setValue(row.index, text)
            onFinished: row.model.finishValue(row.index)
        }
    }

    Component {
        id: kindEditor

        Item {
            readonly property Item field: picker
            implicitHeight: picker.height

            PillPicker {
                id: picker
                anchors.left: parent.left
                inRow: true
                width: Math.max(150, implicitWidth)
                label: qsTr("Kind")
                model: row.model.kinds
                currentIndex: row.choice
                displayText: currentIndex < 0 ? row.value : currentText
                onActivated: index => row.model.setChoice(row.index, index)
            }
        }
    }

    Component {
        id: tagEditor

        TagDots {
            readonly property Item field: stop
            height: Theme.controlInRow
            topPadding: (Theme.controlInRow - 24) / 2
            current: row.value
            onChosen: word => row.model.setValue(row.index, word)
        }
    }
}
