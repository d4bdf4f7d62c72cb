import QtQuick
import QtQuick.Templates as T

/// One of two to four short choices. model: a list of words, or of objects with textRole. What is
/// chosen stays for the owner to say.
Rectangle {
    id: control

    property var model: []
    property string textRole
    /// How many mistakes are behind each choice, in words; empty where there are none.
    property var errorCounts: []
    property int currentIndex: 0
    property string label

    signal activated(int index)

    implicitWidth: row.implicitWidth + 4
    implicitHeight: Theme.controlInRow
    radius: Theme.rControl
    color: Theme.hover
    border.width: Theme.isHighContrast ? 1 : 0
    border.color: Theme.line
    opacity: enabled ? 1 : Theme.disabledOpacity
    Accessible.role: Accessible.Grouping
    Accessible.name: label

    function choose(index, byKey) {
        const kept = Math.max(0, Math.min(repeater.count - 1, index));
        if (byKey)
            repeater.itemAt(kept).forceActiveFocus(Qt.TabFocusReason);
        if (kept !== currentIndex)
            activated(kept);
    }

    Row {
        id: row
        anchors.centerIn: parent
        height: parent.height - 4

        Repeater {
            id: repeater
            model: control.model

            T.RadioButton {
                checkable: false // what is chosen is for whoever shows it to say
                autoExclusive: false
                id: segment

                required property int index
                required property var modelData
                readonly property bool chosen: index === control.currentIndex
                readonly property int radius: Theme.rTile
                readonly property string errorCount: control.errorCounts[index] ?? ""
                readonly property real room: errorCount === "" ? 0 : Math.ceil(number.advanceWidth) + 5

                text: control.textRole === "" ? modelData : modelData[control.textRole]
                height: row.height
                implicitWidth: Math.max(words.implicitWidth, strong.advanceWidth) + room + 26
                focusPolicy: chosen ? Qt.StrongFocus : Qt.ClickFocus
                hoverEnabled: true
                onClicked: control.choose(index, false)
                Keys.onPressed: event => {
                    const target = Keystroke.inRow(event, index, repeater.count, control.LayoutMirroring.enabled);
                    event.accepted = target !== undefined;
                    if (event.accepted)
                        control.choose(target, true);
                }

                Accessible.role: Accessible.RadioButton
                Accessible.name: [control.label, text, errorCount].filter(Boolean).join(" ")
                Accessible.checkable: true
                Accessible.checked: chosen
                Accessible.onPressAction: control.choose(index, false)
                Accessible.onToggleAction: control.choose(index, false)

                TextMetrics {
                    id: strong
                    text: segment.text
                    font: words.font
                }

                TextMetrics {
                    id: number
                    text: segment.errorCount
                    font: errors.font
                }

                contentItem: Item {
                    Label {
                        id: words
                        anchors.centerIn: parent
                        anchors.horizontalCenterOffset: (segment.mirrored ? 1 : -1) * segment.room / 2
                        text: segment.text
                        style: Theme.bodyMedium
                        color: segment.chosen || segment.hovered ? Theme.text1 : Theme.text2
                        showsTip: false
                        Accessible.ignored: true
                    }

                    Label {
                        id: errors
                        anchors.left: words.right
                        anchors.leftMargin: 5
                        anchors.verticalCenter: parent.verticalCenter
                        text: segment.errorCount
                        style: Theme.bodyStrong
                        color: Theme.error
                        showsTip: false
                        Accessible.ignored: true
                    }
                }

                background: Rectangle {
                    radius: segment.radius
                    color: segment.chosen ? Theme.card : "transparent"
                    border.width: segment.chosen ? 1 : 0
                    border.color: Theme.line

                    Shadow {
                        elevation: segment.chosen ? 1 : 0
                    }
                }

                FocusRing {
                    target: segment
                }
            }
        }
    }
}
