#include "platform/linux/X11WindowHints.h"

#include <cstdlib>
#include <xcb/xcb.h>

namespace quillon {
namespace {

constexpr std::uint32_t fromApplication = 1;
constexpr std::uint32_t fromUser = 2; ///< as a taskbar does; no window manager refuses it

} // namespace

void X11WindowHints::Disconnect::operator()(xcb_connection_t* connection) const {
    xcb_disconnect(connection);
}

bool X11WindowHints::connect() {
    if (connection_)
        return xcb_connection_has_error(connection_.get()) == 0;
    int screen = 0;
    connection_.reset(xcb_connect(nullptr, &screen));
    if (xcb_connection_has_error(connection_.get()) != 0)
        return false;
    compositing_ = "_NET_WM_CM_S" + std::to_string(screen);
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection_.get()));
    for (; screen > 0 && screens.rem > 1; --screen)
        xcb_screen_next(&screens);
    root_ = screens.data->root;
    return true;
}

std::uint32_t X11WindowHints::atom(std::string_view name) {
    const auto request =
        xcb_intern_atom(connection_.get(), 0, std::uint16_t(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection_.get(), request, nullptr), &std::free);
    return reply ? reply->atom : std::uint32_t(XCB_ATOM_NONE);
}

void X11WindowHints::tellManager(std::uint64_t window, std::string_view message,
                                 std::uint32_t first, std::uint32_t second, std::uint32_t third,
                                 std::uint32_t fourth) {
    xcb_client_message_event_t event = {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = std::uint32_t(window);
    event.type = atom(message);
    event.data.data32[0] = first;
    event.data.data32[1] = second;
    event.data.data32[2] = third;
    event.data.data32[3] = fourth;
    xcb_send_event(connection_.get(), 0, root_,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(connection_.get());
}

bool X11WindowHints::isComposited() {
    if (!connect())
        return true; // every other kind of desktop is
    const auto request = xcb_get_selection_owner(connection_.get(), atom(compositing_));
    const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> reply(
        xcb_get_selection_owner_reply(connection_.get(), request, nullptr), &std::free);
    return reply && reply->owner != XCB_NONE;
}

void X11WindowHints::setSkipsTaskbar(std::uint64_t window, bool skips) {
    if (connect())
        tellManager(window, "_NET_WM_STATE", skips ? 1 : 0, atom("_NET_WM_STATE_SKIP_TASKBAR"),
                    atom("_NET_WM_STATE_SKIP_PAGER"), fromApplication);
}

void X11WindowHints::bringToFront(std::uint64_t window) {
    if (connect())
        tellManager(window, "_NET_ACTIVE_WINDOW", fromUser, XCB_CURRENT_TIME, 0, 0);
}

} // namespace quillon
