import QtQuick
import Quillon

/// The newest activity of the folder.
Item {
    id: footer

    property int startMargin: Theme.s6
    property int endMargin: Theme.s6
    property bool isCompact: false
    readonly property Item activity: card

    visible: App.page.hasRules || App.page.hasActivity
    height: visible ? card.y + card.height + Theme.s6 : 0

    Label {
        id: title
        anchors.left: parent.left
        anchors.leftMargin: footer.startMargin
        y: Theme.s6 - 1
        text: qsTr("Recent activity")
        style: Theme.heading
        Accessible.role: Accessible.Heading
    }

    Button {
        visible: App.page.hasActivity
        anchors.right: parent.right
        anchors.rightMargin: footer.endMargin - 10
        anchors.verticalCenter: title.verticalCenter
        kind: "link"
        opensMore: true
        text: qsTr("See all")
        toolTip: qsTr("Everything that was done in %1").arg(App.page.name)
        onClicked: App.history.open(App.page.folderID)
    }

    Card {
        id: card

        property int current: 0

        anchors.left: parent.left
        anchors.leftMargin: footer.startMargin
        anchors.right: parent.right
        anchors.rightMargin: footer.endMargin
        anchors.top: title.bottom
        anchors.topMargin: 11
        height: App.page.hasActivity ? rows.height : nothing.implicitHeight + 2 * Theme.s4
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Recent activity")

        function takeFocus() {
            return go(Math.min(current, repeater.count - 1));
        }

        function go(index) {
            const row = repeater.itemAt(index);
            if (!row)
                return false;
            current = index;
            row.row.forceActiveFocus(Qt.TabFocusReason);
            return true;
        }

        Label {
            id: nothing
            visible: !App.page.hasActivity
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.margins: Theme.s4
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Nothing tidied yet. New files will show up here.")
            color: Theme.text2
            wrapMode: Text.Wrap
        }

        Column {
            id: rows
            width: parent.width

            Repeater {
                id: repeater
                model: App.page.activity

                Item {
                    id: place

                    required property int index
                    required property string key
                    required property string fileName
                    required property string kind
                    required property string secondLine
                    required property string timeText
                    required property string spokenTime
                    required property bool canReveal
                    required property bool canUndo
                    required property bool isError
                    readonly property Item row: activityRow

                    width: rows.width
                    height: activityRow.height + (index > 0 ? 1 : 0)

                    Divider {
                        visible: place.index > 0
                        width: parent.width
                    }

                    ActivityRow {
                        id: activityRow
                        anchors.bottom: parent.bottom
                        width: parent.width
                        fileName: place.fileName
                        kind: place.kind
                        secondLine: place.secondLine
                        timeText: place.timeText
                        spokenTime: place.spokenTime
                        canReveal: place.canReveal
                        canUndo: place.canUndo
                        undoing: App.entries.undoing.includes(place.key)
                        isError: place.isError
                        compact: footer.isCompact
                        isTabStop: place.index === Math.min(card.current, repeater.count - 1)
                        onRevealAsked: App.entries.reveal(place.key)
                        onUndoAsked: App.entries.undo(place.key)
                        onActiveFocusChanged: if (activeFocus) card.current = place.index
                        Keys.onPressed: event => {
                            const target = Keystroke.inList(event, place.index, repeater.count);
                            if (target !== undefined) {
                                event.accepted = true;
                                card.go(target);
                            }
                        }
                    }
                }
            }
        }
    }
}
