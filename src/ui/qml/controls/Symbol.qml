import QtQuick

/// A glyph where there is one, else an icon.
Item {
    id: symbol

    property string glyph
    property string iconName
    property color color: Theme.text1
    property int size: 16
    property bool mirrorsRightToLeft: false

    implicitWidth: size
    implicitHeight: size
    visible: glyph !== "" || iconName !== ""

    Loader {
        active: symbol.glyph !== ""
        sourceComponent: Glyph {
            name: symbol.glyph
            color: symbol.color
            size: symbol.size
            mirrorsRightToLeft: symbol.mirrorsRightToLeft
        }
    }

    Loader {
        active: symbol.glyph === "" && symbol.iconName !== ""
        sourceComponent: Icon {
            name: symbol.iconName
            color: symbol.color
            size: symbol.size
            mirrorsRightToLeft: symbol.mirrorsRightToLeft
        }
    }
}
