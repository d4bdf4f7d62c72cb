#pragma once

#include "platform/Error.h"

#include <QByteArray>

#include <optional>
#include <string>

namespace quillon {

/// One extended attribute of the file itself; a symbolic link is never followed. Absent when there
/// is none, also where the file system keeps none at all.
[[nodiscard]] Expected<std::optional<QByteArray>> readAttribute(const std::string& path,
                                                                const char* name);

/// Sets the attribute, or removes it when there is no value. Fails with `unsupported` on a symbolic
/// link and where the file system keeps no attributes.
[[nodiscard]] Expected<void> writeAttribute(const std::string& path, const char* name,
                                            const std::optional<QByteArray>& value);

} // namespace quillon
