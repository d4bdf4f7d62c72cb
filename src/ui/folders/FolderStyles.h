#pragma once

#include <QStringList>
#include <QVariantList>

namespace quillon {

/// What the tints are called, in their order.
[[nodiscard]] QStringList tintNames();

/// The icons that a folder can have: `name` of the desktop's theme, and `label`.
[[nodiscard]] QVariantList folderSymbols();

/// The icon that suits a folder at that path, such as the user's downloads; "folder" for any other.
[[nodiscard]] QString suitingSymbol(const QString& path);

} // namespace quillon
