/// An icon of the desktop's theme, in one colour.
Pictogram {
    provider: "icon"
    theme: Theme.desktop ? Theme.desktop.iconTheme : ""
}
