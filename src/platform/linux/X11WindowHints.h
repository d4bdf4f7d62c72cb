#pragma once

#include "platform/WindowHints.h"

#include <memory>
#include <string>
#include <string_view>

struct xcb_connection_t;

namespace quillon {

/// Hints of the X11 desktops. Connects when first used; without an X server does nothing.
class X11WindowHints final : public WindowHints {
public:
    [[nodiscard]] bool isComposited() override;
    void setSkipsTaskbar(std::uint64_t window, bool skips) override;
    void bringToFront(std::uint64_t window) override;

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const;
    };

    [[nodiscard]] bool connect();
    [[nodiscard]] std::uint32_t atom(std::string_view name);
    void tellManager(std::uint64_t window, std::string_view message, std::uint32_t first,
                     std::uint32_t second, std::uint32_t third, std::uint32_t fourth);

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    std::uint32_t root_ = 0;
    std::string compositing_; ///< the selection that a compositor of our screen owns
};

} // namespace quillon
