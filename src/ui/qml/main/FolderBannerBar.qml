import QtQuick
import Quillon

/// The banner of the folder, which takes no room when there is none.
Item {
    id: bar

    readonly property var shown: App.page.banner
    readonly property bool isShown: shown.kind !== ""

    height: isShown ? banner.implicitHeight + Theme.s4 : 0
    clip: height > 0 && height < banner.implicitHeight

    Behavior on height {
        NumberAnimation {
            duration: Theme.slow
            easing.type: Easing.OutCubic
        }
    }

    Banner {
        id: banner
        width: parent.width
        visible: bar.isShown
        kind: bar.shown.kind
        glyph: bar.shown.glyph
        iconName: bar.shown.iconName
        text: bar.shown.text

        Repeater {
            model: bar.shown.actions

            Button {
                required property int index
                required property string modelData
                small: true
                text: modelData
                onClicked: App.page.actOnBanner(index)
            }
        }
    }
}
