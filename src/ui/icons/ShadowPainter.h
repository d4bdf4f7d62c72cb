#pragma once

#include <QImage>
#include <QSize>

namespace quillon {

/// How far the shadow of an elevation (1 to 3) reaches beyond its surface.
[[nodiscard]] int shadowReach(int elevation);

/// The shadow of a rounded rectangle of that size, with its reach all around. The middle is drawn,
/// too: the surface lies over it.
[[nodiscard]] QImage paintShadow(int elevation, int radius, QSize surface, bool isDark);

} // namespace quillon
