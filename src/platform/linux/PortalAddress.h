#pragma once

#include <QLatin1StringView>

namespace quillon {

/// Where the desktop's portal listens on the session's bus.
inline constexpr QLatin1StringView portalName{"org.freedesktop.portal.Desktop"};
inline constexpr QLatin1StringView portalPath{"/org/freedesktop/portal/desktop"};

} // namespace quillon
