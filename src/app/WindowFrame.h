#pragma once

#include <QList>
#include <QRect>
#include <QString>

#include <optional>

namespace quillon {

/// Where a window was when it was last moved, in device-independent pixels.
struct WindowFrame {
    QRect rect;
    bool isMaximized = false;

    bool operator==(const WindowFrame&) const = default;
};

/// As it is kept in the settings.
[[nodiscard]] QString frameText(const WindowFrame& frame);
/// Nothing when the text is none.
[[nodiscard]] std::optional<WindowFrame> readFrame(const QString& text);

/// The rectangle, no larger than a screen allows and with enough of it on one that a person can get
/// hold of it. `screens` are the parts that panels leave free, the most important one first.
[[nodiscard]] QRect reachable(QRect rect, const QList<QRect>& screens);

} // namespace quillon
