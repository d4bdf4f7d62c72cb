/// One of Quillon's own drawings: guard, horseshoe, grip, more, chevron (points down), tick, cross,
/// alert, bar, mark.
Pictogram {
    provider: "glyph"
}
