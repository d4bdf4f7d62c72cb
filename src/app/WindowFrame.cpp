#include "app/WindowFrame.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastWidth = 160;
/// The part at the top that moves it.
constexpr int gripHeight = 40;

bool canBeReached(const QRect& rect, const QRect& screen) {
    const QRect grip = QRect(rect.topLeft(), QSize(rect.width(), gripHeight)) & screen;
    return grip.width() >= leastWidth && grip.height() == gripHeight;
}

} // namespace

QString frameText(const WindowFrame& frame) {
    QString text = u"%1 %2 %3 %4"_s.arg(frame.rect.x())
                       .arg(frame.rect.y())
                       .arg(frame.rect.width())
                       .arg(frame.rect.height());
    return frame.isMaximized ? text + u" maximized"_s : text;
}

std::optional<WindowFrame> readFrame(const QString& text) {
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    if (words.size() < 4)
        return std::nullopt;
    std::array<int, 4> numbers{};
    for (int i = 0; i < 4; ++i) {
        bool isNumber = false;
        numbers.at(std::size_t(i)) = words[i].toInt(&isNumber);
        if (!isNumber)
            return std::nullopt;
    }
    const QRect rect(numbers[0], numbers[1], numbers[2], numbers[3]);
    if (rect.isEmpty())
        return std::nullopt;
    return WindowFrame{.rect = rect, .isMaximized = words.value(4) == u"maximized"};
}

QRect reachable(QRect rect, const QList<QRect>& screens) {
    if (screens.isEmpty() || std::ranges::any_of(screens, [&](const QRect& screen) {
            return canBeReached(rect, screen) && rect.width() <= screen.width() &&
                   rect.height() <= screen.height();
        }))
        return rect;
    const QRect& screen = *std::ranges::max_element(screens, {}, [&](const QRect& candidate) {
        const QRect common = candidate & rect;
        return common.width() * common.height();
    });
    rect.setSize(rect.size().boundedTo(screen.size()));
    rect.moveLeft(std::clamp(rect.left(), screen.left(), screen.right() - rect.width() + 1));
    rect.moveTop(std::clamp(rect.top(), screen.top(), screen.bottom() - rect.height() + 1));
    return rect;
}

} // namespace quillon
