import QtQuick
import QtQuick.Layouts
import Quillon

/// The rule that is being edited: its conditions, its actions, and all the while its sentence and what
/// it would catch.
Sheet {
    id: sheet

    readonly property QtObject editor: App.editor
    readonly property int indent: 34

    title: editor.title
    caption: editor.folder.name ? qsTr("In %1").arg(editor.folder.name) : ""
    tile: FolderTile {
        tint: sheet.editor.folder.tint ?? 0
        symbol: sheet.editor.folder.symbol ?? ""
    }
    sheetWidth: 800
    sheetHeight: 676
    fits: true
    scrolls: true
    primary: saveButton
    onCloseRequested: editor.cancel()

    Component.onCompleted: Qt.callLater(focusFirst)

    function focusFirst() {
        // What has the focus is scrolled into view, and for that everything must have its place.
        for (const column of [conditions, actions, body])
            column.forceLayout();
        if (editor.isNew && describe.canWrite)
            describe.focusField();
        else
            nameField.forceActiveFocus(Qt.TabFocusReason);
    }

    Connections {
        target: sheet.editor

        function onWrongCondition(row) {
            conditions.focusRow(row, "value");
        }
    }

    Shortcut {
        sequence: "Ctrl+L"
        enabled: !question.visible
        onActivated: describe.focusField()
    }

    Shortcut {
        sequences: ["Ctrl+Shift+Return", "Ctrl+Shift+Enter"]
        enabled: !question.visible
        onActivated: actions.focusedRow() >= 0 ? addAction.open() : sheet.newCondition()
    }

    Shortcut {
        sequence: "Alt+Up"
        enabled: !question.visible
        onActivated: sheet.moveRow(-1)
    }

    Shortcut {
        sequence: "Alt+Down"
        enabled: !question.visible
        onActivated: sheet.moveRow(1)
    }

    function newCondition() {
        conditions.focusRow(editor.conditions.add(), "first");
    }

    function moveRow(step) {
        for (const list of [conditions, actions]) {
            const row = list.focusedRow();
            if (row >= 0)
                list.rows.move(row, row + step);
        }
    }

    headerEnd: [
        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Switched on")
            color: Theme.text2
            Accessible.ignored: true
        },
        Switch {
            anchors.verticalCenter: parent.verticalCenter
            label: qsTr("Switched on")
            checked: sheet.editor.isEnabled
            onToggled: sheet.editor.isEnabled = checked
        }
    ]

    Column {
        id: body
        width: parent.width

        Banner {
            width: parent.width
            visible: sheet.editor.notice !== ""
            glyph: "alert"
            text: sheet.editor.notice
        }

        Item {
            width: 1
            height: Theme.s3
            visible: sheet.editor.notice !== ""
        }

        DescribeBox {
            id: describe
            width: parent.width
            dobbin: sheet.editor.dobbin
            hasOffer: sheet.editor.hasOffer
            onOfferTaken: sheet.editor.takeOffer()
            onOfferDropped: sheet.editor.dropOffer()
            onCanWriteChanged: {
                if (!canWrite && sheet.editor.isNew && !sheet.editor.isChanged)
                    sheet.focusFirst();
            }
        }

        Item {
            width: 1
            height: 15
        }

        RowLayout {
            width: parent.width
            spacing: 0

            Label {
                Layout.preferredWidth: 76
                text: qsTr("Name")
                style: Theme.captionStrong
                color: Theme.text2
                Accessible.ignored: true
            }

            Field {
                id: nameField
                Layout.fillWidth: true
                label: qsTr("Name")
                text: sheet.editor.name
                onEdited: text => sheet.editor.name = text
            }
        }

        Item {
            width: 1
            height: Theme.s4
        }

        RowLayout {
            width: parent.width
            spacing: 0

            Label {
                Layout.preferredWidth: 64
                text: qsTr("If", "what the conditions come after")
                style: Theme.captionStrong
                color: Theme.text2
            }

            Segments {
                label: qsTr("Match", "all, any or none of the conditions")
                model: sheet.editor.matchModes
                currentIndex: sheet.editor.matchMode
                onActivated: index => sheet.editor.matchMode = index
            }

            Label {
                Layout.leftMargin: 10
                text: sheet.editor.matchModeTail
                color: Theme.text2
            }

            Item {
                Layout.fillWidth: true
            }

            Button {
                id: addCondition
                kind: "link"
                iconName: "list-add"
                text: qsTr("Add Condition")
                shortcutText: qsTr("Ctrl+Shift+Enter")
                onClicked: sheet.newCondition()
            }
        }

        Item {
            width: 1
            height: Theme.s2
        }

        EditorRows {
            id: conditions
            width: parent.width
            rows: sheet.editor.conditions
            scroller: sheet.scroller
            Accessible.name: qsTr("Conditions")
            whenEmpty: addCondition

            delegate: ConditionRow {
                list: conditions
                indent: sheet.indent
                calendar: sheet.editor.calendar
            }
        }

        Item {
            width: 1
            height: 13
        }

        RowLayout {
            width: parent.width
            spacing: 0

            Label {
                text: qsTr("Then", "what the actions come after")
                style: Theme.captionStrong
                color: Theme.text2
            }

            Label {
                Layout.leftMargin: 10
                text: qsTr("in this order")
                style: Theme.caption
                color: Theme.text2
            }

            Item {
                Layout.fillWidth: true
            }

            AddActionButton {
                id: addAction
                types: sheet.editor.actions.types
                onChosen: type => actions.focusRow(sheet.editor.actions.add(type), "value")
            }
        }

        Item {
            width: 1
            height: Theme.s2
        }

        EditorRows {
            id: actions
            width: parent.width
            rows: sheet.editor.actions
            scroller: sheet.scroller
            Accessible.name: qsTr("Actions")
            whenEmpty: addAction

            delegate: ActionRow {
                list: actions
                indent: sheet.indent
                editor: sheet.editor
            }
        }

        Item {
            width: 1
            height: 1
        }
    }

    pinned: ProbeBar {
        width: parent.width
        editor: sheet.editor
        highest: Math.min(Theme.scaled(168), Math.round(sheet.height / 3))
    }

    destructive: Button {
        visible: !sheet.editor.isNew
        kind: "destructive"
        iconName: "user-trash"
        text: qsTr("Delete Rule")
        onClicked: sheet.editor.deleteRule()
    }

    footer: [
        Button {
            text: qsTr("Cancel")
            onClicked: sheet.editor.cancel()
        },
        Button {
            id: saveButton
            kind: "primary"
            text: qsTr("Save Rule")
            shortcutText: qsTr("Ctrl+Enter")
            onClicked: sheet.editor.save()
        }
    ]

    QuestionCard {
        id: question
        parent: sheet
        anchors.fill: parent
        question: sheet.editor.question
    }
}
