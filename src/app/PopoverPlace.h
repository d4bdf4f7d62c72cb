#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace quillon {

/// Where a surface of that size lies beside the point that it belongs to: below it in the upper
/// half of the screen, above it in the lower one, and wholly within `available`.
[[nodiscard]] QRect placeBeside(QPoint point, QSize surface, const QRect& available);

} // namespace quillon
