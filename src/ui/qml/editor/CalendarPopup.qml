import QtQuick
import QtQuick.Templates as T
import Quillon

/// A month to choose a day from, by pointer or by keys.
T.Popup {
    id: popup

    property QtObject calendar

    signal chosen(string day)

    readonly property int cell: Theme.scaled(32)

    implicitWidth: 7 * cell + 2 * padding
    implicitHeight: content.implicitHeight + 2 * padding
    margins: 12
    padding: Theme.s3
    modal: true
    dim: false
    focus: true

    function choose(day) {
        chosen(day);
        close();
    }

    background: MenuSurface {}
    enter: MenuEnter {}

    contentItem: Column {
        id: content
        spacing: Theme.s2

        Item {
            width: parent.width
            height: Theme.control

            IconButton {
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                kind: "quiet"
                iconName: "go-previous"
                mirrorsRightToLeft: true
                label: qsTr("Month before")
                onClicked: popup.calendar.stepMonths(-1)
            }

            Label {
                anchors.centerIn: parent
                text: popup.calendar.title
                style: Theme.bodyStrong
            }

            IconButton {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                kind: "quiet"
                iconName: "go-next"
                mirrorsRightToLeft: true
                label: qsTr("Month after")
                onClicked: popup.calendar.stepMonths(1)
            }
        }

        Row {
            Repeater {
                model: popup.calendar.weekdays

                Label {
                    required property string modelData
                    width: popup.cell
                    horizontalAlignment: Text.AlignHCenter
                    text: modelData
                    style: Theme.micro
                    color: Theme.text3
                    showsTip: false
                }
            }
        }

        Grid {
            readonly property int radius: Theme.rControl
            readonly property bool visualFocus: activeFocus

            columns: 7
            focus: true
            activeFocusOnTab: true
            Accessible.role: Accessible.Table
            Accessible.name: popup.calendar.spoken
            Keys.onPressed: event => {
                const sideways = LayoutMirroring.enabled ? -1 : 1;
                const step = {
                    [Qt.Key_Left]: -sideways,
                    [Qt.Key_Right]: sideways,
                    [Qt.Key_Up]: -7,
                    [Qt.Key_Down]: 7
                }[event.key];
                const isChosen = event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space;
                event.accepted = true;
                if (step !== undefined)
                    popup.calendar.stepDays(step);
                else if (event.key === Qt.Key_PageUp)
                    popup.calendar.stepMonths(-1);
                else if (event.key === Qt.Key_PageDown)
                    popup.calendar.stepMonths(1);
                else if (isChosen)
                    popup.choose(popup.calendar.current);
                else
                    event.accepted = false;
            }

            Repeater {
                model: popup.calendar

                Rectangle {
                    id: day

                    required property int number
                    required property string spoken
                    required property bool isInMonth
                    required property bool isCurrent
                    required property bool isToday
                    required property var model

                    width: popup.cell
                    height: popup.cell
                    radius: Theme.rControl
                    color: isCurrent ? Theme.accent : area.containsMouse ? Theme.hover : "transparent"
                    border.width: isToday && !isCurrent ? 1 : 0
                    border.color: Theme.accent
                    Accessible.role: Accessible.Cell
                    Accessible.name: spoken
                    Accessible.selected: isCurrent
                    Accessible.onPressAction: popup.choose(model.day)

                    Label {
                        anchors.centerIn: parent
                        text: day.number
                        color: day.isCurrent ? Theme.onAccent : day.isInMonth ? Theme.text1 : Theme.text3
                        showsTip: false
                        Accessible.ignored: true
                    }

                    MouseArea {
                        id: area
                        anchors.fill: parent
                        hoverEnabled: true
                        onClicked: popup.choose(day.model.day)
                    }
                }
            }
        }
    }
}
