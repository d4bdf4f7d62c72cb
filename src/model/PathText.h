#pragma once

#include <QString>

namespace quillon {

/// The last component of a path, trailing slashes left out; "/" of the root.
[[nodiscard]] QString lastPathComponent(const QString& path);

/// The path with one more component.
[[nodiscard]] QString appendedPath(const QString& folder, const QString& name);

} // namespace quillon
