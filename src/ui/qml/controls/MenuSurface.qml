import QtQuick

/// What a menu is drawn on.
Rectangle {
    radius: Theme.rBanner
    color: Theme.card
    border.width: 1
    border.color: Theme.line

    Shadow {
        elevation: 2
    }
}
