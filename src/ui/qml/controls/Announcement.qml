import QtQuick

/// Says something once to whoever listens instead of looks. Nothing of it is seen.
Item {
    id: announcement

    property string text

    function say(words) {
        text = "";
        visible = false;
        text = words;
        visible = true;
    }

    width: 1
    height: 1
    visible: false
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text
}
