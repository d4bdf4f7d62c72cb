import QtQuick

/// A number, time or size in a column: at the column's end, and as wide as the widest text that the
/// column is to hold, so that digits stand under digits.
Label {
    id: tabular

    property string widest

    style: Theme.caption
    color: Theme.text3
    horizontalAlignment: Text.AlignRight
    elide: Text.ElideNone
    width: Math.max(measure.advanceWidth, contentWidth)

    TextMetrics {
        id: measure
        text: tabular.widest
        font: tabular.font
    }
}
