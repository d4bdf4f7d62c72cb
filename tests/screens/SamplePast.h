#pragma once

#include "assistant/ChatTurn.h"
#include "model/LogEntry.h"
#include "model/WatchedFolder.h"

#include <string>
#include <vector>

namespace quillon::testing {

/// What these folders' rules have done since yesterday, newest first, a clean-up of 36 files among
/// it. Where an entry can be undone its file is put where the entry says.
[[nodiscard]] std::vector<LogEntry>
samplePast(const std::string& home, const std::vector<WatchedFolder>& folders, Timestamp now);

/// A conversation about it, with a change still to be made and one that was.
[[nodiscard]] std::vector<ChatTurn> sampleChat(const std::vector<WatchedFolder>& folders,
                                               const std::vector<LogEntry>& past, Timestamp now);

} // namespace quillon::testing
