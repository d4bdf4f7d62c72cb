#pragma once

#include "platform/Error.h"
#include "platform/FileStatus.h"

#include <string>
#include <sys/stat.h>

namespace quillon {

/// One look at a name, links not followed. Returns 0 or an errno value.
[[nodiscard]] int lookAt(int folder, const char* name, struct statx& found);

/// One look at an open file. Returns 0 or an errno value.
[[nodiscard]] int lookAt(int descriptor, struct statx& found);

[[nodiscard]] FileStatus toFileStatus(const struct statx& found);

/// `folder` is a descriptor or AT_FDCWD.
[[nodiscard]] Expected<FileStatus> statusAt(int folder, const std::string& name);

[[nodiscard]] Expected<FileStatus> statusOf(int descriptor);

/// The same file, untouched: everything but the time of last access, which reading moves on.
[[nodiscard]] bool isUnchanged(const FileStatus& before, const FileStatus& now);

/// The same file with the same contents, though its metadata or its name may have changed.
[[nodiscard]] bool hasSameContents(const FileStatus& before, const FileStatus& now);

} // namespace quillon
