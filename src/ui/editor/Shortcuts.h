#pragma once

#include "platform/Platform.h"

#include <QStringList>

namespace quillon {

[[nodiscard]] QString shortcutsFolder(const Platform& platform);

/// The shortcuts that an action can run: the programs in the folder for them. Looks at the disk.
[[nodiscard]] QStringList shortcutNames(const Platform& platform);

} // namespace quillon
