import QtQuick

/// One sentence about what is wrong, with up to two small buttons. kind: warn or error.
Rectangle {
    id: banner

    property string kind: "warn"
    property string glyph
    property string iconName
    property string text
    default property alias buttons: row.data
    readonly property color ink: kind === "error" ? Theme.error : Theme.warn

    implicitHeight: Math.max(Theme.scaled(44), sentence.implicitHeight + 16)
    implicitWidth: 400
    radius: Theme.rBanner
    color: kind === "error" ? Theme.errorSoft : Theme.warnSoft
    border.width: 1
    border.color: Theme.isHighContrast ? ink : kind === "error" ? Theme.errorLine : Theme.warnLine
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Symbol {
        id: symbol
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        glyph: banner.glyph
        iconName: banner.iconName
        size: 16
        color: banner.ink
    }

    Label {
        id: sentence
        anchors.left: symbol.right
        anchors.leftMargin: 10
        anchors.right: row.left
        anchors.rightMargin: Theme.s3
        anchors.verticalCenter: parent.verticalCenter
        text: banner.text
        style: Theme.bodyMedium
        color: banner.ink
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    Row {
        id: row
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        spacing: 10
    }
}
