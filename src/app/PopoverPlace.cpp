#include "app/PopoverPlace.h"

#include <algorithm>

namespace quillon {
namespace {

constexpr int gap = 12;
constexpr int fromEdge = 8;

/// The largest first coordinate wins where there is too little room.
int within(int wanted, int length, int first, int last) {
    return std::max(first + fromEdge, std::min(wanted, last + 1 - fromEdge - length));
}

} // namespace

QRect placeBeside(QPoint point, QSize surface, const QRect& available) {
    const int x = point.x() - surface.width() / 2;
    const bool isBelow = point.y() < available.center().y();
    const int y = isBelow ? point.y() + gap : point.y() - gap - surface.height();
    return {QPoint(within(x, surface.width(), available.left(), available.right()),
                   within(y, surface.height(), available.top(), available.bottom())),
            surface};
}

} // namespace quillon
