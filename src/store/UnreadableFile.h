#pragma once

#include "platform/Clock.h"
#include "platform/Storage.h"

#include <string>

namespace quillon {

/// Renames a file of ours that can't be used, for the reason given, to "NAME.unreadable-DATE", and
/// returns a sentence about it without its stop. Fails when it can't be renamed, and leaves it
/// alone when the reason is `io`: a disk or a machine in trouble says nothing about the file.
[[nodiscard]] Expected<QString> keepUnreadable(Storage& storage, const std::string& path,
                                               const Error& reason, Timestamp now);

} // namespace quillon
