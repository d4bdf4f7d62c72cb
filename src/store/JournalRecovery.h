#pragma once

#include "platform/FileSystem.h"
#include "store/JournalFormat.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace quillon {

/// The folders in which the trash may have put a file from a folder.
using TrashPlaces = std::function<std::vector<std::string>(const std::string& folder)>;

/// What an interrupted run did to the files that it wrote down, found by looking for each one:
/// first where the journal last knew it, then in the folders where its rule would put it. Changes
/// nothing on the disk.
///
/// A file that nothing has happened to gives no entry. One that has moved gives an entry from which
/// the move can be undone; one that can't be found gives an error. Runs of which anything is in
/// `logs` already are passed over.
[[nodiscard]] std::vector<LogEntry> recoveredEntries(const JournalContents& journal,
                                                     const std::vector<LogEntry>& logs,
                                                     const FileSystem& fileSystem,
                                                     const TrashPlaces& trashPlaces);

/// Drops the entries that an interrupted undo had taken back already, those whose files are no
/// longer where the entry says, but back; and returns them, with `currentPath` the place where each
/// file is now. Where a copy was made and the file is still in its place, the entry says so.
[[nodiscard]] std::vector<LogEntry> dropTakenBack(const JournalContents& journal,
                                                  std::vector<LogEntry>& logs,
                                                  const FileSystem& fileSystem);

/// The folders in which the run may have left hidden temporaries.
[[nodiscard]] std::set<std::string> touchedFolders(const JournalContents& journal);

} // namespace quillon
