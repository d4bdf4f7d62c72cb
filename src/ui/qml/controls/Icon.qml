/// An icon of the desktop's theme, in one colour.
Pictogram {
    provider: "icon"
}
