import QtQuick
import QtQuick.Templates as T

/// Several lines of text; it grows with them, up to maximumLines.
FocusScope {
    id: box

    property alias text: input.text
    property string placeholder
    property string label
    property string errorText
    property bool monospaced: false
    property int minimumLines: 3
    property int maximumLines: 8
    property int sidePadding: 11
    property int endPadding: 6
    property alias radius: surface.radius
    /// Small things at the end of the last line.
    property alias trailing: trailing.data
    property alias input: input

    signal edited(string text)

    implicitWidth: 200
    implicitHeight: column.implicitHeight
    opacity: enabled ? 1 : Theme.disabledOpacity

    Column {
        id: column
        width: parent.width

        FieldSurface {
            id: surface
            width: parent.width
            height: Math.min(Math.max(box.minimumLines * lines.height, input.contentHeight), box.maximumLines * lines.height) + 2 * box.endPadding + 2
            active: input.activeFocus
            wrong: box.errorText !== ""

            FontMetrics {
                id: lines
                font: input.font
            }

            Flickable {
                id: flick
                anchors.fill: parent
                anchors.margins: 1
                anchors.rightMargin: trailing.width > 0 ? trailing.width + 12 : 1
                clip: contentHeight > height
                boundsBehavior: Flickable.StopAtBounds
                contentWidth: width
                contentHeight: input.implicitHeight

                T.TextArea {
                    id: input
                    width: flick.width
                    height: Math.max(implicitHeight, flick.height)
                    implicitHeight: contentHeight + topPadding + bottomPadding
                    focus: true
                    activeFocusOnTab: true
                    topPadding: box.endPadding
                    bottomPadding: box.endPadding
                    leftPadding: box.sidePadding
                    rightPadding: box.sidePadding
                    selectByMouse: true
                    wrapMode: TextEdit.Wrap
                    textFormat: TextEdit.PlainText
                    horizontalAlignment: box.monospaced && box.LayoutMirroring.enabled ? TextEdit.AlignRight : TextEdit.AlignLeft
                    color: Theme.text1
                    selectionColor: Theme.accent
                    selectedTextColor: Theme.onAccent
                    placeholderText: box.placeholder
                    placeholderTextColor: Theme.text3
                    font.family: box.monospaced ? Theme.monospacedFamily : Theme.fontFamily
                    font.pixelSize: Theme.body.size
                    property string reported

                    onTextChanged: {
                        if (activeFocus && text !== reported)
                            box.edited(text);
                        reported = text;
                    }
                    onCursorRectangleChanged: {
                        if (cursorRectangle.y < flick.contentY)
                            flick.contentY = cursorRectangle.y;
                        else if (cursorRectangle.y + cursorRectangle.height + bottomPadding > flick.contentY + flick.height)
                            flick.contentY = cursorRectangle.y + cursorRectangle.height + bottomPadding - flick.height;
                    }
                    // Its own keys come before what they would write.
                    Keys.forwardTo: [box]
                    Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
                    Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

                    Accessible.role: Accessible.EditableText
                    Accessible.name: box.label
                    Accessible.description: box.errorText !== "" ? box.errorText : box.placeholder === box.label ? "" : box.placeholder

                    Text {
                        x: input.leftPadding
                        y: input.topPadding
                        width: input.width - 2 * box.sidePadding
                        visible: input.length === 0 && input.preeditText === ""
                        text: box.placeholder
                        textFormat: Text.PlainText
                        color: Theme.text3
                        font: input.font
                        wrapMode: Text.Wrap
                        horizontalAlignment: Text.AlignLeft
                        Accessible.ignored: true
                    }
                }
            }

            Row {
                id: trailing
                anchors.right: parent.right
                anchors.rightMargin: 7
                anchors.bottom: parent.bottom
                anchors.bottomMargin: 6
            }
        }

        FieldError {
            width: parent.width
            text: box.errorText
        }
    }
}
