#pragma once

#include "platform/Error.h"
#include "platform/FileStatus.h"

#include <string>

namespace quillon {

/// Whether the existing folder at `path` is `folder` or lies anywhere inside it, whatever links
/// lead there.
[[nodiscard]] bool isWithin(const std::string& path, const FileStatus& folder);

/// The folder at the top of the file system that holds the existing folder `path`, which must have
/// no links in it.
[[nodiscard]] Expected<std::string> mountPointOf(const std::string& path);

} // namespace quillon
