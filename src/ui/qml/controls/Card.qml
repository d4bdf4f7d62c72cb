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

    // Opaque, and without round corners: neither the shadow nor what else lies beneath is painted
    // where it can't be seen.
    Rectangle {
        x: 1
        y: card.radius
        width: card.width - 2
        height: Math.max(0, card.height - 2 * card.radius)
        color: card.color
    }
}
