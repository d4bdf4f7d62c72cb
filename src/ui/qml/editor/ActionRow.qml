import QtQuick
import Quillon

/// One action: what it does, and with what.
EditorRow {
    id: row

    required property int type
    required property string control
    required property var destination
    required property string pattern
    required property string example
    required property string tag
    required property int strategy
    required property bool keepOriginal
    required property string script
    required property string shortcut
    property QtObject editor
    readonly property QtObject model: list ? list.rows : null

    first: typePicker
    valueItem: loader.item && loader.item.field ? loader.item.field : null

    PillPicker {
        id: typePicker
        anchors.left: parent.left
        inRow: true
        width: Math.max(206, implicitWidth)
        label: qsTr("Action")
        model: row.model.types
        textRole: "text"
        iconRole: "iconName"
        currentIndex: row.type
        onActivated: index => row.model.setType(row.index, index)
    }

    Loader {
        id: loader
        anchors.left: typePicker.right
        anchors.leftMargin: Theme.s2
        anchors.right: parent.right
        sourceComponent: ({
                "folder": folderEditor,
                "pattern": patternEditor,
                "example": exampleText,
                "tag": tagEditor,
                "strategy": strategyPicker,
                "keep": keepBox,
                "shortcut": shortcutPicker,
                "script": scriptEditor
            })[row.control] ?? null
    }

    Component {
        id: folderEditor

        FolderField {
            readonly property Item field: this
            destination: row.destination
            choices: row.editor.folderChoices
            onChosen: path => row.model.setDestination(row.index, path)
            onBrowse: row.editor.chooseFolder(row.index)
        }
    }

    Component {
        id: patternEditor

        PatternField {
            text: row.pattern
            example: row.example
            tokens: row.model.tokens
            onEdited: text => row.model.setPattern(row.index, text)
        }
    }

    Component {
        id: exampleText

        Label {
            readonly property Item field: null
            height: Theme.controlInRow
            text: row.example
            style: Theme.caption
            color: Theme.text2
        }
    }

    Component {
        id: tagEditor

        TagDots {
            readonly property Item field: stop
            height: Theme.controlInRow
            topPadding: (Theme.controlInRow - 24) / 2
            current: row.tag
            onChosen: word => row.model.setTag(row.index, word)
        }
    }

    Component {
        id: strategyPicker

        Item {
            readonly property Item field: picker
            implicitHeight: picker.height

            PillPicker {
                id: picker
                anchors.left: parent.left
                inRow: true
                width: Math.max(150, implicitWidth)
                label: qsTr("Sort by")
                model: row.model.strategies
                currentIndex: row.strategy
                onActivated: index => row.model.setStrategy(row.index, index)
            }
        }
    }

    Component {
        id: keepBox

        Row {
            readonly property Item field: tick
            height: Theme.controlInRow
            leftPadding: Theme.s2
            spacing: Theme.s2

            TickBox {
                id: tick
                anchors.verticalCenter: parent.verticalCenter
                label: words.text
                checkState: row.keepOriginal ? Qt.Checked : Qt.Unchecked
                onToggled: row.model.setKeepOriginal(row.index, checkState === Qt.Checked)
            }

            Label {
                id: words
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Keep the archive")
                Accessible.ignored: true

                TapHandler {
                    onTapped: row.model.setKeepOriginal(row.index, !row.keepOriginal)
                }
            }
        }
    }

    Component {
        id: shortcutPicker

        Item {
            readonly property Item field: picker
            implicitHeight: picker.height

            PillPicker {
                id: picker
                anchors.left: parent.left
                inRow: true
                enabled: count > 0
                width: Math.min(Math.max(206, implicitWidth), parent.width)
                label: qsTr("Shortcut")
                model: row.editor.shortcuts
                currentIndex: row.editor.shortcuts.indexOf(row.shortcut)
                displayText: row.shortcut !== "" ? row.shortcut : qsTr("Choose a shortcut")
                onActivated: index => row.model.setShortcut(row.index, textAt(index))
            }

            Label {
                anchors.left: picker.right
                anchors.leftMargin: Theme.s2
                anchors.right: parent.right
                height: Theme.controlInRow
                visible: picker.count === 0
                text: qsTr("There are no shortcuts in %1").arg(row.editor.shortcutsPlace)
                style: Theme.caption
                color: Theme.text2
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight
            }
        }
    }

    Component {
        id: scriptEditor

        Column {
            readonly property Item field: box
            spacing: 6

            TextBox {
                id: box
                width: parent.width
                monospaced: true
                label: qsTr("Script")
                text: row.script
                onEdited: text => row.model.setScript(row.index, text)
            }

            Label {
                width: parent.width
                text: qsTr("The file’s path is \"$1\".")
                style: Theme.caption
                color: Theme.text2
                wrapMode: Text.Wrap
            }
        }
    }
}
