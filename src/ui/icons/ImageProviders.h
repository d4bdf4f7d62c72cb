#pragma once

class QQmlEngine;

namespace quillon {

/// Lets QML show what is painted here:
/// - image://icon/NAME/SIZE/COLOUR and image://glyph/NAME/SIZE/COLOUR, the colour as RRGGBB or
/// AARRGGBB;
/// - image://shadow/ELEVATION/RADIUS/WIDTH/HEIGHT/light (or dark), with the size of the surface.
void addImageProviders(QQmlEngine& engine);

} // namespace quillon
