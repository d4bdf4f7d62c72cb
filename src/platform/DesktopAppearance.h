#pragma once

#include <functional>

namespace quillon {

/// How the person wants programs to look, beyond the colours and the font that the toolkit knows
/// of. On the event loop's thread. What a desktop doesn't tell is false.
class DesktopAppearance {
public:
    struct Wishes {
        bool prefersDark = false;
        bool prefersHighContrast = false;
        bool reducesMotion = false;
        bool hasButtonsAtStart = false; ///< those of windows, where a line of text begins

        bool operator==(const Wishes&) const = default;
    };

    virtual ~DesktopAppearance() = default;

    /// As far as they have become known: a desktop may take a moment to answer.
    [[nodiscard]] virtual Wishes wishes() const = 0;
    /// Called after every change, in place of what was given before.
    virtual void setListener(std::function<void()> changed) = 0;
};

} // namespace quillon
