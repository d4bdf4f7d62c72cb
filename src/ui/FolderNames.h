#pragma once

#include "ui/Toasts.h"

#include <string>

namespace quillon {

/// Whether a folder that somebody chose can be kept by its path, which is kept as text. When it
/// can't be, a toast says so.
[[nodiscard]] bool canBeKept(const std::string& path, Toasts& toasts);

} // namespace quillon
