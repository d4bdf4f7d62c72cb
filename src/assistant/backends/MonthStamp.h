#pragma once

#include "platform/Clock.h"

#include <QString>

namespace quillon {

/// The local year and month, "2026-3". Without zeros in front: stamps that are stored are compared
/// as texts.
[[nodiscard]] QString monthStamp(Timestamp now);

} // namespace quillon
