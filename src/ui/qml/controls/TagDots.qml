import QtQuick
import QtQuick.Templates as T

/// One of the seven tags, by the word that is stored.
Row {
    id: control

    property string current
    property string label: qsTr("Tag")
    readonly property var words: ["red", "orange", "yellow", "green", "blue", "purple", "gray"]
    readonly property var names: [qsTr("Red"), qsTr("Orange"), qsTr("Yellow"), qsTr("Green"), qsTr("Blue"), qsTr("Purple"), qsTr("Grey")]
    readonly property int currentIndex: words.indexOf(current)
    /// The dot that Tab comes to.
    readonly property Item stop: repeater.count > 0 ? repeater.itemAt(Math.max(0, currentIndex)) : null

    signal chosen(string word)

    spacing: Theme.s2
    opacity: enabled ? 1 : Theme.disabledOpacity
    Accessible.role: Accessible.Grouping
    Accessible.name: label

    function choose(index, byKey) {
        const kept = (index + words.length) % words.length;
        if (byKey)
            repeater.itemAt(kept).forceActiveFocus(Qt.TabFocusReason);
        if (kept !== currentIndex)
            chosen(words[kept]);
    }

    Repeater {
        id: repeater
        model: control.words

        T.RadioButton {
            checkable: false // what is chosen is for whoever shows it to say
            autoExclusive: false
            id: dot

            required property int index
            required property string modelData
            readonly property bool isChosen: index === control.currentIndex
            readonly property int radius: 12

            width: 24
            height: 24
            hoverEnabled: true
            containmentMask: hitArea
            text: control.names[index]
            focusPolicy: isChosen || control.currentIndex < 0 && index === 0 ? Qt.StrongFocus : Qt.ClickFocus
            onClicked: control.choose(index, false)
            Keys.onPressed: event => {
                const target = Keystroke.inRow(event, index, control.words.length, control.LayoutMirroring.enabled);
                event.accepted = target !== undefined;
                if (event.accepted)
                    control.choose(target, true);
            }

            Accessible.role: Accessible.RadioButton
            Accessible.name: text
            Accessible.checkable: true
            Accessible.checked: isChosen
            Accessible.onPressAction: control.choose(index, false)
            Accessible.onToggleAction: control.choose(index, false)

            HitArea {
                id: hitArea
            }

            contentItem: Item {
                Rectangle {
                    anchors.fill: parent
                    visible: dot.isChosen
                    radius: 12
                    color: "transparent"
                    border.width: 2
                    border.color: Theme.tagColor(dot.modelData)
                }

                Rectangle {
                    anchors.centerIn: parent
                    width: 16
                    height: 16
                    radius: 8
                    color: Theme.tagColor(dot.modelData)

                    Glyph {
                        anchors.centerIn: parent
                        visible: dot.isChosen
                        name: "tick"
                        size: 10
                        color: Theme.onTint
                    }
                }
            }

            FocusRing {
                target: dot
            }

            HoverTip {
                text: dot.text
            }
        }
    }

    Label {
        anchors.verticalCenter: parent.verticalCenter
        leftPadding: Theme.s2
        visible: control.currentIndex >= 0
        text: control.currentIndex >= 0 ? control.names[control.currentIndex] : ""
        color: Theme.text2
        Accessible.ignored: true
    }
}
