import QtQuick
import Quillon

/// A day, typed or chosen from a calendar.
Field {
    id: date

    property QtObject calendar
    readonly property Item field: this

    signal finished

    inRow: true
    label: qsTr("Date")

    Connections {
        target: date.input

        function onEditingFinished() {
            date.finished();
        }
    }

    trailing: IconButton {
        kind: "quiet"
        iconName: "view-calendar-month"
        label: qsTr("Calendar")
        onClicked: {
            date.calendar.open(date.text);
            popup.open();
        }
    }

    CalendarPopup {
        id: popup
        y: Theme.controlInRow + 4
        x: date.LayoutMirroring.enabled ? 0 : date.width - width
        calendar: date.calendar
        onChosen: day => date.edited(day)
    }
}
