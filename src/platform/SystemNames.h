#pragma once

#include <QStringView>

namespace quillon {

/// What people call their operating system.
inline constexpr QStringView linuxName = u"Linux";
inline constexpr QStringView macName = u"macOS";

/// What they call the place where it keeps their secrets.
inline constexpr QStringView linuxKeychainName = u"keyring";
inline constexpr QStringView macKeychainName = u"Keychain";

/// Those that this is built for, for every sentence that names them.
inline constexpr QStringView systemName = linuxName;
inline constexpr QStringView keychainName = linuxKeychainName;

} // namespace quillon
