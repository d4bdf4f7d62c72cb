#pragma once

#include "model/LogEntry.h"

#include <QString>

#include <vector>

namespace quillon {

/// Of the entries that a model was told of, those to show with its answer: the ones of files that
/// it speaks of by name, the old name or the present one. Where it names none, the first three of
/// rules that it speaks of; otherwise none, since an entry that has nothing to do with the answer
/// is worse than no entry.
[[nodiscard]] std::vector<LogEntry> entriesShown(const QString& answer,
                                                 const std::vector<LogEntry>& entries);

} // namespace quillon
