#pragma once

#include "platform/Error.h"
#include "platform/FileStatus.h"
#include "platform/linux/TreeCursor.h"

#include <QStringList>

namespace quillon {

/// Copies a regular file durably, contents and metadata, under a name that is free. `expected` is
/// what a look at it told before: fails with `changed` when it is no longer that, before or after.
/// On failure a partial copy may be left for the caller to remove.
[[nodiscard]] Expected<void> copyRegularFile(const TreeCursor::Place& from,
                                             const TreeCursor::Place& to,
                                             const FileStatus& expected, QStringList& losses);

/// Copies a symbolic link as a link.
[[nodiscard]] Expected<void> copyLink(const TreeCursor::Place& from, const TreeCursor::Place& to,
                                      QStringList& losses);

/// Makes a folder that only we may enter, to be finished when it is filled.
[[nodiscard]] Expected<void> beginFolder(const TreeCursor::Place& to);

/// Gives a filled folder its metadata and makes its entries durable.
[[nodiscard]] Expected<void> finishFolder(const TreeCursor::Place& from,
                                          const TreeCursor::Place& to, QStringList& losses);

/// What to say of a source that was touched while it was copied.
[[nodiscard]] std::unexpected<Error> changedWhileCopied();

} // namespace quillon
