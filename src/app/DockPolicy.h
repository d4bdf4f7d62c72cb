#pragma once

#include "platform/TrayItem.h"

namespace quillon {

/// Where Quillon is to be found, from what the user has chosen and what the desktop has.
struct DockPolicy {
    bool showsDockIcon = true;
    bool hasOnboarded = false;
    TrayItem::Place tray = TrayItem::Place::unknown;

    [[nodiscard]] bool showsWindowAtLaunch() const {
        return showsDockIcon || !hasOnboarded || tray == TrayItem::Place::nowhere;
    }
    /// The tray item is the only way in then, so there must be one.
    [[nodiscard]] bool skipsTaskbar() const {
        return !showsDockIcon && hasOnboarded && tray == TrayItem::Place::shown;
    }
    /// Otherwise it is minimized, so that the taskbar still has it.
    [[nodiscard]] bool closingHides() const { return tray != TrayItem::Place::nowhere; }
};

} // namespace quillon
