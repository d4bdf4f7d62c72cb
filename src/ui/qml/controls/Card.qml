import QtQuick

/// A raised surface. Rows in it are divided by `Divider`.
Rectangle {
    id: card

    property int elevation: 1
    property bool highlighted: false

    color: Theme.card
    radius: Theme.rCard
    border.width: 1
    border.color: highlighted ? Theme.lineStrong : Theme.line

    Shadow {
        elevation: card.elevation
    }
}
