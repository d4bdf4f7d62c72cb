#pragma once

#include <QStringView>

namespace quillon {

/// What people call their operating system.
inline constexpr QStringView linuxName = u"Linux";
inline constexpr QStringView macName = u"macOS";

/// The one that this is built for, for every sentence that names it.
inline constexpr QStringView systemName = linuxName;

} // namespace quillon
