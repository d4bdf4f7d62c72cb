import QtQuick

/// Dobbin's three dots.
Row {
    id: dots

    spacing: 4
    Accessible.ignored: true

    Repeater {
        model: 3

        Rectangle {
            required property int index
            readonly property real rest: [1, 0.7, 0.4][index]

            width: 5
            height: 5
            radius: 2.5
            color: Theme.dobbin
            opacity: rest

            SequentialAnimation on opacity {
                running: dots.visible && !Theme.reducesMotion
                loops: Animation.Infinite

                PauseAnimation {
                    duration: index * Theme.think / 6
                }
                NumberAnimation {
                    from: 0.3
                    to: 1
                    duration: Theme.think / 3
                    easing.type: Easing.InOutSine
                }
                NumberAnimation {
                    to: 0.3
                    duration: Theme.think / 3
                    easing.type: Easing.InOutSine
                }
                PauseAnimation {
                    duration: (2 - index) * Theme.think / 6
                }
            }
        }
    }
}
