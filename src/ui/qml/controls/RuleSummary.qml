import QtQuick

/// A rule's own sentence: what it looks for is quiet, what it does is not.
Text {
    property string condition
    property string action
    /// For a rule that is off.
    property bool quiet: false

    function escaped(text) {
        return text.replace(/&/g, "&amp;").replace(/</g, "&lt;").replace(/>/g, "&gt;");
    }

    text: "<font color=\"" + (quiet ? Theme.text3 : Theme.text2) + "\">" + escaped(condition) + "</font>" + (action === "" ? "" : " <font color=\"" + Theme.text3 + "\">→</font> <font color=\"" + (quiet ? Theme.text2 : Theme.text1) + "\"><b>" + escaped(action) + "</b></font>")
    textFormat: Text.StyledText
    wrapMode: Text.Wrap
    font.family: Theme.fontFamily
    font.pixelSize: Theme.caption.size
    lineHeight: Theme.caption.lineHeight
    lineHeightMode: Text.FixedHeight
    horizontalAlignment: Text.AlignLeft

    Accessible.role: Accessible.StaticText
    Accessible.name: action === "" ? condition : condition + " → " + action
}
