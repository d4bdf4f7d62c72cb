#pragma once

#include "faults/Scenario.h"
#include "model/RuleAction.h"

#include <functional>

namespace quillon::testing {

// What Quillon does to "in/report.pdf" and its like, with the services it has at work, and what it
// says came of it.

[[nodiscard]] Report moveFile(const Places& places);
[[nodiscard]] Report copyFile(const Places& places);
[[nodiscard]] std::function<Report(const Places&)> acting(RuleAction action);
[[nodiscard]] Report restoreFromTrash(const Places& places);

inline constexpr const char* archiveName = "in/photos.tar.gz";
inline constexpr const char* unpackedName = "in/photos";
[[nodiscard]] Report unpackArchive(const Places& places);

/// One file each to move (pdf), copy (doc), trash (log), rename (csv) and sort (jpg), with the
/// store and its journal.
[[nodiscard]] Report tidyFolder(const Places& places);

/// The next start after tidying was interrupted, and what the activity log says then.
[[nodiscard]] Report recoverTidying(const Places& places);

/// The things that a log tells of, under their old names "in/NAME", are to be taken back in one go.
void logUndoable(const Places& places);
[[nodiscard]] Report undoLogged(const Places& places);

/// The next start after undoing was interrupted: for each thing, where the log says it is, or that
/// it is back.
[[nodiscard]] Report recoverUndoing(const Places& places);

/// Takes away what a killed run left hidden in the folders that it worked in.
[[nodiscard]] Report removeLeftovers(const Places& places);

} // namespace quillon::testing
