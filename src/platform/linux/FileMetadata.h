#pragma once

#include "platform/Error.h"

#include <QStringList>

namespace quillon {

/// Gives an open file or folder what surrounds the contents of another: owner where allowed,
/// extended attributes, permissions, access lists and, last, times. Adds to `losses` in people's
/// words what could not be kept; fails only when a device does.
[[nodiscard]] Expected<void> copyMetadata(int from, int to, QStringList& losses);

/// The same for a symbolic link, which has an owner and times only.
[[nodiscard]] Expected<void> copyLinkMetadata(int fromFolder, const std::string& from, int toFolder,
                                              const std::string& to, QStringList& losses);

} // namespace quillon
