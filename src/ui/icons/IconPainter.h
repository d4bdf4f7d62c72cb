#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace quillon {

/// An icon of the desktop's theme in one colour. Where the theme has none of that name, or only one
/// that colour alone gives its shape, it is one of those that Quillon brings, and a dot when there
/// is none either: never nothing. `size` in device-independent pixels chooses the drawing, `pixels`
/// is the side of the image.
[[nodiscard]] QImage paintIcon(const QString& name, int size, int pixels, const QColor& color);

/// One of Quillon's own drawings in one colour, and a dot where there is none of that name.
[[nodiscard]] QImage paintGlyph(const QString& name, int pixels, const QColor& color);

} // namespace quillon
