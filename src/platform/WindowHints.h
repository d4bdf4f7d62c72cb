#pragma once

#include <cstdint>

namespace quillon {

/// What the desktop's window manager is told beyond what the toolkit tells it. Does nothing where a
/// desktop has no such thing.
class WindowHints {
public:
    virtual ~WindowHints() = default;

    /// Whether something can be seen through a window that is not filled.
    [[nodiscard]] virtual bool isComposited() = 0;
    /// Whether the window, which is shown, is left out of the taskbar and the list of windows.
    virtual void setSkipsTaskbar(std::uint64_t window, bool skips) = 0;
    /// In front of all others and with the keyboard, because the user has just asked for it.
    virtual void bringToFront(std::uint64_t window) = 0;
};

} // namespace quillon
