import QtQuick

/// Text in one of the type styles. What doesn't fit is elided, and then a tooltip shows all of it.
Words {
    id: label

    property bool showsTip: true

    Loader {
        active: label.truncated && label.showsTip
        anchors.fill: parent
        sourceComponent: TipArea {
            text: label.text
        }
    }
}
