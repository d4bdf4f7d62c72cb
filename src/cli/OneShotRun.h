#pragma once

#include "cli/Inputs.h"
#include "cli/LineBuffer.h"
#include "service/ExitCode.h"
#include "store/JsonStream.h"

#include <optional>
#include <vector>

namespace quillon {

/// What came of a run that a command asks for once, over a folder that need not be watched.
struct OneShotRun {
    QString folder; ///< its path
    std::size_t tested = 0;
    std::size_t deferred = 0;
    std::size_t skippedNames = 0;
    QUuid batchID; ///< on every entry
    RunResult run;
    std::optional<Error> unsaved;
};

/// The run before anything has been done.
[[nodiscard]] OneShotRun plannedRun(const FolderInput& input);

/// Tidies the ready files, with a progress bar, and puts what happened into the activity log.
void carryOut(OneShotRun& run, FolderInput input, const StoreAccess& store, const Console& console,
              Services& services);

/// One line a file, a total, and which of it undo won't reach.
void addOneShotRun(const OneShotRun& run, LineBuffer& lines);
/// How to take the run back, where that is possible.
void addUndoHint(const OneShotRun& run, LineBuffer& lines);

/// The keys from "tested" to "entries" of an object that has been begun.
void writeOneShotRun(JsonStream& json, const OneShotRun& run, std::ostream& out);

/// Says what went wrong with the run as a whole; `someFailed` when something did, or with a file.
[[nodiscard]] ExitCode sayHowItEnded(const OneShotRun& run, const Console& console);

} // namespace quillon
