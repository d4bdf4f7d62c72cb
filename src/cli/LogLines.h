#pragma once

#include "cli/LineBuffer.h"
#include "model/LogEntry.h"

#include <vector>

namespace quillon {

/// One line an entry: the beginning of its id, which `undo` takes, when, which file, what was done
/// with it and by which rule. With places, a second one says where the file is.
void addLogLines(const std::vector<LogEntry>& logs, LineBuffer& lines, bool withPlaces = false);

/// As the lines show it.
[[nodiscard]] QString shortID(const LogEntry& entry);

} // namespace quillon
