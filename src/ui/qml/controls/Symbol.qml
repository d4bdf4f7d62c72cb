/// A glyph where there is one, else an icon.
Pictogram {
    property string glyph
    property string iconName

    provider: glyph !== "" ? "glyph" : "icon"
    name: glyph !== "" ? glyph : iconName
}
