#pragma once

#include <QStringList>
#include <QVariantList>

namespace quillon {

/// What the tints are called, in their order.
[[nodiscard]] QStringList tintNames();

/// The icons that a folder can have: `name` of the desktop's theme, and `label`.
[[nodiscard]] QVariantList folderSymbols();

} // namespace quillon
