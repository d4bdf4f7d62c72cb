import QtQuick
import Quillon

/// A recipe of the clean-up with its tick, its days and its number of files.
FocusScope {
    id: card

    required property int index
    required property string title
    required property string iconName
    required property string sentence
    required property string warning
    required property string countText
    required property bool isChosen
    required property bool hasDays
    required property int days
    property bool isCurrent: false

    signal lookedAt

    implicitHeight: column.implicitHeight + 2 * 14
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: countText

    Keys.onPressed: event => {
        const step = Keystroke.step(event);
        event.accepted = hasDays && step !== 0;
        if (event.accepted)
            App.cleanup.setDays(index, days + step);
    }

    onActiveFocusChanged: if (activeFocus) lookedAt()

    Card {
        anchors.fill: parent
        radius: 10
        visible: card.isCurrent
    }

    HoverHandler {
        onHoveredChanged: if (hovered) card.lookedAt()
    }

    TapHandler {
        onTapped: {
            tick.forceActiveFocus(Qt.MouseFocusReason);
            App.cleanup.chooseRecipe(card.index, !card.isChosen);
            card.lookedAt();
        }
    }

    TickBox {
        id: tick
        anchors.left: parent.left
        anchors.leftMargin: 12
        y: 15
        focus: true
        checkState: card.isChosen ? Qt.Checked : Qt.Unchecked
        label: card.title
        description: [card.sentence, card.warning, card.countText].filter(text => text !== "").join(" ")
        onToggled: {
            App.cleanup.chooseRecipe(card.index, checkState === Qt.Checked);
            card.lookedAt();
            checkState = Qt.binding(() => card.isChosen ? Qt.Checked : Qt.Unchecked);
        }
    }

    Icon {
        anchors.left: tick.right
        anchors.leftMargin: Theme.s3
        y: 15
        name: card.iconName
        color: Theme.text1
    }

    Column {
        id: column
        anchors.left: tick.right
        anchors.leftMargin: 37
        anchors.right: parent.right
        anchors.rightMargin: 14
        y: 14
        spacing: 0

        Item {
            width: parent.width
            height: name.implicitHeight

            Label {
                id: name
                anchors.left: parent.left
                anchors.right: number.left
                anchors.rightMargin: Theme.s2
                text: card.title
                style: Theme.bodyStrong
                Accessible.ignored: true
            }

            Label {
                id: number
                anchors.right: parent.right
                anchors.baseline: name.baseline
                text: card.countText
                style: Theme.caption
                color: Theme.text2
                Accessible.ignored: true
            }
        }

        Label {
            width: parent.width
            text: card.sentence
            style: Theme.caption
            color: Theme.text2
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        Item {
            visible: extras.visible
            width: 1
            height: Theme.s2
        }

        Row {
            id: extras
            visible: card.hasDays || card.warning !== ""
            spacing: Theme.s2

            Loader {
                active: card.hasDays
                visible: active
                sourceComponent: DayStepper {
                    value: card.days
                    label: qsTr("Days, %1").arg(card.title)
                    onModified: value => App.cleanup.setDays(card.index, value)
                }
            }

            Badge {
                anchors.verticalCenter: parent.verticalCenter
                visible: card.warning !== ""
                kind: "warn"
                text: card.warning
            }
        }
    }
}
