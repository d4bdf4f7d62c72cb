import QtQuick

/// kind: error (filled), warn, neutral, dobbin, ok or accent. Round when it has one character, or
/// none and a glyph.
Rectangle {
    id: badge

    property string kind: "neutral"
    property string text
    property string glyph
    property string iconName
    readonly property bool isRound: text.length + (glyph !== "" || iconName !== "" ? 1 : 0) <= 1
    readonly property color ink: ({
            "error": Theme.onError,
            "warn": Theme.warn,
            "dobbin": Theme.dobbin,
            "ok": Theme.ok,
            "accent": Theme.accentOnSoft
        })[kind] || Theme.text2

    implicitHeight: Theme.scaled(18)
    implicitWidth: isRound ? implicitHeight : row.implicitWidth + 12
    radius: height / 2
    color: ({
            "error": Theme.errorFill,
            "warn": Theme.warnSoft,
            "dobbin": Theme.dobbinSoft,
            "ok": Theme.okSoft,
            "accent": Theme.accentSoft
        })[kind] || Theme.hover
    border.width: kind === "warn" || Theme.isHighContrast && kind !== "error" ? 1 : 0
    border.color: Theme.isHighContrast ? ink : Theme.warnLine
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: text === ""

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 4

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            glyph: badge.glyph
            iconName: badge.iconName
            size: 12
            color: badge.ink
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: badge.text
            style: Theme.microStrong
            color: badge.ink
            Accessible.ignored: true
        }
    }
}
